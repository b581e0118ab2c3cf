// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XdgDirectories.h"

#include <QDir>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QString folder(const QProcessEnvironment &environment, const QString &variable, const QString &fallback)
{
    const QString value = environment.value(variable);
    return QDir::isAbsolutePath(value) ? QDir::cleanPath(value) : fallback;
}

QStringList folders(const QProcessEnvironment &environment, const QString &variable,
                    const QStringList &fallback)
{
    QStringList result;
    for (const QString &path : environment.value(variable).split(u':', Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(path))
            result.append(QDir::cleanPath(path));
    }
    return result.isEmpty() ? fallback : result;
}

} // namespace

XdgDirectories XdgDirectories::fromEnvironment(const QProcessEnvironment &environment)
{
    const QString home = environment.value(u"HOME"_s, QDir::homePath());
    const QString dataHome = folder(environment, u"XDG_DATA_HOME"_s, home + u"/.local/share"_s);
    return {
        .configHome = folder(environment, u"XDG_CONFIG_HOME"_s, home + u"/.config"_s),
        .stateHome = folder(environment, u"XDG_STATE_HOME"_s, home + u"/.local/state"_s),
        .configDirs = folders(environment, u"XDG_CONFIG_DIRS"_s, {u"/etc/xdg"_s}),
        .dataDirs = QStringList{dataHome} +
                    folders(environment, u"XDG_DATA_DIRS"_s, {u"/usr/local/share"_s, u"/usr/share"_s}),
    };
}

} // namespace keyvora
