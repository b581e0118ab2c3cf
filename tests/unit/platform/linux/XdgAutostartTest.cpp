// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XdgAutostart.h"

#include "platform/linux/DesktopEntry.h"
#include "unit/QtPrinters.h"
#include "unit/platform/linux/Files.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const auto entryName = u"autostart/app.keyvora.Keyvora.desktop"_s;
const QByteArray plainEntry = "[Desktop Entry]\nType=Application\nName=Keyvora\nExec=keyvora\n";
const QByteArray hiddenEntry = plainEntry + "Hidden=true\n";

/// The user's configuration folder and two of the system's.
class ConfigDirs
{
public:
    [[nodiscard]] XdgAutostart autostart(const QString &executable = u"/bin/sh"_s) const
    {
        return {m_folder.filePath(u"home"_s),
                {m_folder.filePath(u"site"_s), m_folder.filePath(u"system"_s)},
                executable};
    }

    [[nodiscard]] QString ownEntry() const { return m_folder.filePath(u"home/"_s + entryName); }
    [[nodiscard]] QString siteEntry() const { return m_folder.filePath(u"site/"_s + entryName); }
    [[nodiscard]] QString systemEntry() const { return m_folder.filePath(u"system/"_s + entryName); }

    /// From now on nobody can write below the user's folder, not even the superuser.
    void blockOwnFolder() const { EXPECT_TRUE(writeFile(m_folder.filePath(u"home"_s), "a file")); }

private:
    QTemporaryDir m_folder;
};

/// What a command line writes to its output; a failure counts as output.
QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished())
        return "does not run: " + process.errorString().toUtf8();
    const QByteArray output = process.readAll();
    return process.exitCode() == 0 ? output : "failed: " + output;
}

} // namespace

TEST(XdgAutostart, IsOffWithoutAnEntry)
{
    const ConfigDirs dirs;
    EXPECT_FALSE(dirs.autostart().isEnabled());
}

TEST(XdgAutostart, IsSwitchedOnAndOff)
{
    const ConfigDirs dirs;
    XdgAutostart autostart = dirs.autostart();
    EXPECT_EQ(autostart.setEnabled(true), std::nullopt);
    EXPECT_TRUE(autostart.isEnabled());
    EXPECT_EQ(autostart.setEnabled(true), std::nullopt);
    EXPECT_TRUE(autostart.isEnabled());
    EXPECT_EQ(autostart.setEnabled(false), std::nullopt);
    EXPECT_FALSE(autostart.isEnabled());
    EXPECT_FALSE(QFileInfo::exists(dirs.ownEntry()));
    EXPECT_EQ(autostart.setEnabled(false), std::nullopt);
    EXPECT_FALSE(autostart.isEnabled());
}

TEST(XdgAutostart, WritesAnEntryThatStartsTheProgram)
{
    const ConfigDirs dirs;
    ASSERT_EQ(dirs.autostart(u"/opt/my apps/keyvora"_s).setEnabled(true), std::nullopt);
    const auto entry = DesktopEntry::read(dirs.ownEntry()).value_or(DesktopEntry());
    EXPECT_EQ(entry.value(u"Type"_s), u"Application"_s);
    EXPECT_EQ(entry.value(u"Name"_s), u"Keyvora"_s);
    EXPECT_EQ(entry.value(u"Exec"_s), u"\"/opt/my apps/keyvora\""_s);
    EXPECT_EQ(entry.value(u"TryExec"_s), u"/opt/my apps/keyvora"_s);
    EXPECT_EQ(entry.value(u"Icon"_s), u"app.keyvora.Keyvora"_s);
}

TEST(XdgAutostart, WritesAnEntryThatIsValid)
{
    for (const auto &executable : {u"/usr/bin/keyvora"_s, u"/opt/my apps/\"100%\" $a `b` \\c/keyvora"_s}) {
        const ConfigDirs dirs;
        ASSERT_EQ(dirs.autostart(executable).setEnabled(true), std::nullopt);
        EXPECT_EQ(outputOf(u"desktop-file-validate"_s, {dirs.ownEntry()}), "");
        ASSERT_TRUE(writeFile(dirs.systemEntry(), plainEntry));
        ASSERT_EQ(dirs.autostart(executable).setEnabled(false), std::nullopt);
        EXPECT_EQ(outputOf(u"desktop-file-validate"_s, {dirs.ownEntry()}), "");
    }
}

TEST(XdgAutostart, WritesAnEntryThatDesktopsCanStart)
{
    for (const auto &name : {u"keyvora"_s, u"key vora"_s, u"\"a\" $HOME `id` \\n \\\\"_s, u"kůň\n"_s}) {
        const ConfigDirs dirs;
        const QTemporaryDir folder;
        const QString program = folder.filePath(name);
        ASSERT_TRUE(writeFile(program, "#!/bin/sh\necho started\n"));
        ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        ASSERT_EQ(dirs.autostart(program).setEnabled(true), std::nullopt);
        // The second process ends when the program does, which the first does not wait for.
        EXPECT_EQ(outputOf(u"sh"_s, {u"-c"_s, u"gio launch \"$1\" | cat"_s, u"sh"_s, dirs.ownEntry()}),
                  "started\n")
            << name.toStdString();
    }
}

TEST(XdgAutostart, IsOffOnceTheProgramIsRemoved)
{
    const ConfigDirs dirs;
    const QTemporaryDir folder;
    const QString program = folder.filePath(u"a \\n program \n"_s);
    ASSERT_TRUE(writeFile(program, ""));
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    XdgAutostart autostart = dirs.autostart(program);
    ASSERT_EQ(autostart.setEnabled(true), std::nullopt);
    EXPECT_TRUE(autostart.isEnabled());
    ASSERT_TRUE(QFile::remove(program));
    EXPECT_FALSE(autostart.isEnabled());
}

TEST(XdgAutostart, TakesOverTheUsersEntry)
{
    const ConfigDirs dirs;
    ASSERT_TRUE(writeFile(dirs.ownEntry(), "garbage"));
    EXPECT_FALSE(dirs.autostart().isEnabled());
    EXPECT_EQ(dirs.autostart().setEnabled(true), std::nullopt);
    EXPECT_TRUE(dirs.autostart().isEnabled());
}

TEST(XdgAutostart, SeesWhatHasBeenSwitchedElsewhere)
{
    const ConfigDirs dirs;
    const XdgAutostart autostart = dirs.autostart();
    const std::pair<QByteArray, bool> rows[] = {
        {plainEntry, true},
        {plainEntry + "Hidden=false\n", true},
        {plainEntry + "Hidden=true\n", false},
        {plainEntry + "X-GNOME-Autostart-enabled=true\n", true},
        {plainEntry + "X-GNOME-Autostart-enabled=false\n", false},
        {plainEntry + "TryExec=sh\n", true},
        {plainEntry + "TryExec=/bin/sh\n", true},
        {plainEntry + "TryExec=/nowhere/keyvora\n", false},
        {plainEntry + "TryExec=no-such-program-anywhere\n", false},
        {"[Desktop Action new]\nExec=keyvora\n", false},
        {"", false},
    };
    for (const auto &[entry, isEnabled] : rows) {
        ASSERT_TRUE(writeFile(dirs.ownEntry(), entry));
        EXPECT_EQ(autostart.isEnabled(), isEnabled) << entry.toStdString();
    }
    ASSERT_TRUE(QFile::remove(dirs.ownEntry()));
    EXPECT_FALSE(autostart.isEnabled());
}

TEST(XdgAutostart, FollowsTheSystemsEntryWhereTheUserHasNone)
{
    const ConfigDirs dirs;
    ASSERT_TRUE(writeFile(dirs.systemEntry(), plainEntry));
    EXPECT_TRUE(dirs.autostart().isEnabled());
    ASSERT_TRUE(writeFile(dirs.siteEntry(), hiddenEntry));
    EXPECT_FALSE(dirs.autostart().isEnabled());
    ASSERT_TRUE(writeFile(dirs.ownEntry(), plainEntry));
    EXPECT_TRUE(dirs.autostart().isEnabled());
}

TEST(XdgAutostart, MasksTheSystemsEntryWhenSwitchedOff)
{
    const ConfigDirs dirs;
    ASSERT_TRUE(writeFile(dirs.systemEntry(), plainEntry));
    XdgAutostart autostart = dirs.autostart();
    EXPECT_EQ(autostart.setEnabled(false), std::nullopt);
    EXPECT_FALSE(autostart.isEnabled());
    EXPECT_TRUE(DesktopEntry::read(dirs.ownEntry()).value_or(DesktopEntry()).flag(u"Hidden"_s, false));
    EXPECT_EQ(contentOf(dirs.systemEntry()), plainEntry);
    EXPECT_EQ(autostart.setEnabled(true), std::nullopt);
    EXPECT_TRUE(autostart.isEnabled());
}

TEST(XdgAutostart, LeavesNoMaskWhereTheSystemStartsNothing)
{
    const ConfigDirs dirs;
    ASSERT_TRUE(writeFile(dirs.systemEntry(), hiddenEntry));
    XdgAutostart autostart = dirs.autostart();
    ASSERT_EQ(autostart.setEnabled(true), std::nullopt);
    EXPECT_TRUE(autostart.isEnabled());
    EXPECT_EQ(autostart.setEnabled(false), std::nullopt);
    EXPECT_FALSE(autostart.isEnabled());
    EXPECT_FALSE(QFileInfo::exists(dirs.ownEntry()));
}

TEST(XdgAutostart, SaysWhyItCannotBeSwitchedOn)
{
    const ConfigDirs dirs;
    dirs.blockOwnFolder();
    XdgAutostart autostart = dirs.autostart();
    const auto error = autostart.setEnabled(true);
    ASSERT_TRUE(error.has_value());
    EXPECT_NE(error->description, QString());
    EXPECT_FALSE(autostart.isEnabled());
}

TEST(XdgAutostart, SaysWhyItCannotBeSwitchedOff)
{
    const ConfigDirs dirs;
    dirs.blockOwnFolder();
    ASSERT_TRUE(writeFile(dirs.systemEntry(), plainEntry));
    XdgAutostart autostart = dirs.autostart();
    const auto error = autostart.setEnabled(false);
    ASSERT_TRUE(error.has_value());
    EXPECT_NE(error->description, QString());
    EXPECT_TRUE(autostart.isEnabled());
}

TEST(XdgAutostart, SaysWhenSomethingLiesInTheWay)
{
    const ConfigDirs dirs;
    ASSERT_TRUE(QDir().mkpath(dirs.ownEntry() + u"/folder"_s));
    XdgAutostart autostart = dirs.autostart();
    for (const bool enabled : {true, false}) {
        const auto error = autostart.setEnabled(enabled);
        ASSERT_TRUE(error.has_value()) << enabled;
        EXPECT_NE(error->description, QString()) << enabled;
    }
    EXPECT_FALSE(autostart.isEnabled());
}

} // namespace keyvora
