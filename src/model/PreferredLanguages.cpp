// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PreferredLanguages.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

QString messageLocale(const QProcessEnvironment &environment)
{
    for (const QString &variable : {u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANG"_s}) {
        QString value = environment.value(variable);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

/// "cs_CZ.UTF-8@variant" → "cs-CZ"; empty for the locales that name no language.
QString languageAndRegion(const QString &locale)
{
    QString name = locale.section(u'.', 0, 0).section(u'@', 0, 0);
    if (name == "C"_L1 || name == "POSIX"_L1)
        return {};
    return name.replace(u'_', u'-');
}

} // namespace

QStringList preferredLanguages(const QProcessEnvironment &environment)
{
    const QString locale = messageLocale(environment);
    if (locale.isEmpty() || locale == "C"_L1 || locale == "POSIX"_L1)
        return {};
    QStringList languages;
    for (const QString &entry : environment.value(u"LANGUAGE"_s).split(u':', Qt::SkipEmptyParts)) {
        const QString language = languageAndRegion(entry);
        if (!language.isEmpty())
            languages.append(language);
    }
    const QString language = languageAndRegion(locale);
    if (!language.isEmpty())
        languages.append(language);
    return languages;
}

} // namespace keyvora
