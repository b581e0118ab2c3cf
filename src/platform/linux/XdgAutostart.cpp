// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XdgAutostart.h"

#include "platform/AtomicFile.h"
#include "platform/linux/DesktopEntry.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const auto entryName = u"autostart/app.keyvora.Keyvora.desktop"_s;

bool starts(const QString &entryPath)
{
    const auto entry = DesktopEntry::read(entryPath);
    if (!entry || entry->flag(u"Hidden"_s, false) || !entry->flag(u"X-GNOME-Autostart-enabled"_s, true))
        return false;
    const QString needed = entry->value(u"TryExec"_s);
    return needed.isEmpty() || !QStandardPaths::findExecutable(needed).isEmpty();
}

} // namespace

XdgAutostart::XdgAutostart(const QString &configHome, const QStringList &configDirs, QString executable)
    : m_entryPath(configHome + u'/' + entryName)
    , m_systemEntryPaths(configDirs)
    , m_executable(std::move(executable))
{
    for (QString &path : m_systemEntryPaths)
        path += u'/' + entryName;
}

bool XdgAutostart::isEnabled() const
{
    return QFileInfo::exists(m_entryPath) ? starts(m_entryPath) : isEnabledForEverybody();
}

bool XdgAutostart::isEnabledForEverybody() const
{
    const auto entry =
        std::ranges::find_if(m_systemEntryPaths, [](const QString &path) { return QFileInfo::exists(path); });
    return entry != m_systemEntryPaths.end() && starts(*entry);
}

std::optional<PlatformError> XdgAutostart::setEnabled(bool enabled)
{
    if (enabled)
        return write(false);
    if (isEnabledForEverybody())
        return write(true);
    QFile entry(m_entryPath);
    if (entry.exists() && !entry.remove())
        return PlatformError{entry.errorString()};
    return std::nullopt;
}

std::optional<PlatformError> XdgAutostart::write(bool hidden) const
{
    const QString entry =
        u"[Desktop Entry]\n"
        "Type=Application\n"
        "Name=Keyvora\n"
        "Comment=Keyboard shortcuts at hand\n"
        "Comment[cs]=Klávesové zkratky po ruce\n"
        "Exec=%1\n"
        // Where the program has been removed since, desktops pass over the entry.
        "TryExec=%2\n"
        "Icon=app.keyvora.Keyvora\n"
        "Terminal=false\n"
        "StartupNotify=false\n"
        "Hidden=%3\n"_s.arg(DesktopEntry::quotedForExec(m_executable), DesktopEntry::escaped(m_executable),
                            hidden ? u"true"_s : u"false"_s);
    QString reason;
    if (!replaceFile(m_entryPath, entry.toUtf8(), &reason))
        return PlatformError{reason};
    return std::nullopt;
}

} // namespace keyvora
