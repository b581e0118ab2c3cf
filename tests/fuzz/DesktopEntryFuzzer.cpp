// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fuzz/Properties.h"
#include "platform/linux/DesktopEntry.h"

#include <QStringList>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray header = "[Desktop Entry]\n";

void checkEntry(const DesktopEntry &entry, qsizetype bytes)
{
    const QStringList keys{u"Name"_s, u"Exec"_s, u"StartupWMClass"_s, u"Type"_s, u"Name[cs]"_s};
    for (const QString &key : keys) {
        require(entry.value(key).size() <= bytes, "no value is longer than the file");
        const QString name = entry.localizedValue(key, {});
        require(name == entry.value(key), "without languages there is no translation");
        const QString czech = entry.localizedValue(key, {u"cs-CZ"_s});
        require(czech == name || czech == entry.value(key + u"[cs_CZ]"_s) ||
                    czech == entry.value(key + u"[cs]"_s),
                "a translation is one of those in the file");
        require(entry.flag(key, true) == entry.flag(key, false) || entry.value(key).isEmpty(),
                "only what is missing is as one likes");
    }
    const QString program = entry.executableName();
    require(!program.contains(u'/') && program.size() <= bytes, "a program has a plain name");
}

/// Whatever a program is called, an entry can start it.
void checkQuoting(const QString &path)
{
    const QByteArray text = header + "Exec=" + DesktopEntry::quotedForExec(path).toUtf8() + " --option\n";
    const auto entry = DesktopEntry::parse(text);
    require(entry && entry->executableName() == path.section(u'/', -1), "what was quoted is read as it was");
}

} // namespace

void checkDesktopEntry(const QByteArray &bytes)
{
    const auto entry = DesktopEntry::parse(bytes);
    require(!entry || bytes.contains("[Desktop Entry]"), "an entry has its group");
    if (entry)
        checkEntry(*entry, bytes.size());
    const auto headed = DesktopEntry::parse(header + bytes);
    require(headed.has_value(), "an entry with its group is one");
    checkEntry(*headed, bytes.size());
    // A byte order mark alone is no name either.
    if (const QString path = QString::fromUtf8(bytes); !path.isEmpty())
        checkQuoting(path);
}

} // namespace keyvora
