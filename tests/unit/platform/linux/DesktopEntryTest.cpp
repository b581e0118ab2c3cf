// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DesktopEntry.h"

#include "unit/QtPrinters.h"
#include "unit/platform/linux/Files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The entry whose group has these lines.
DesktopEntry entryWith(const QByteArray &lines)
{
    return DesktopEntry::parse("[Desktop Entry]\n" + lines + '\n').value_or(DesktopEntry());
}

QString executableOf(const QByteArray &exec)
{
    return entryWith("Exec=" + exec).executableName();
}

} // namespace

TEST(DesktopEntry, HoldsTheValuesOfItsGroup)
{
    const auto entry = entryWith("Type=Application\nName=Keyvora\nComment=a = b");
    EXPECT_EQ(entry.value(u"Type"_s), u"Application"_s);
    EXPECT_EQ(entry.value(u"Name"_s), u"Keyvora"_s);
    EXPECT_EQ(entry.value(u"Comment"_s), u"a = b"_s);
    EXPECT_EQ(entry.value(u"Icon"_s), QString());
}

TEST(DesktopEntry, IsNothingWithoutItsGroup)
{
    for (const QByteArray &text :
         {QByteArray(), QByteArray("Name=Keyvora\n"), QByteArray("[Desktop Action new]\nName=Keyvora\n"),
          QByteArray("[desktop entry]\nName=Keyvora\n"), QByteArray("#[Desktop Entry]\nName=Keyvora\n")})
        EXPECT_FALSE(DesktopEntry::parse(text)) << text.toStdString();
    EXPECT_TRUE(DesktopEntry::parse("[Desktop Entry]"));
}

TEST(DesktopEntry, IgnoresEveryOtherGroup)
{
    const auto entry = DesktopEntry::parse("Name=before any\n"
                                           "[Other]\nName=before\nName[cs]=předtím\n"
                                           "[Desktop Entry]\nName=right\n"
                                           "[Desktop Action new]\nName=after\nName[cs]=potom\nIcon=new\n")
                           .value_or(DesktopEntry());
    EXPECT_EQ(entry.value(u"Name"_s), u"right"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"cs-CZ"_s}), u"right"_s);
    EXPECT_EQ(entry.value(u"Icon"_s), QString());
}

TEST(DesktopEntry, IgnoresCommentsAndWhatIsNoPair)
{
    const auto entry = entryWith("# Name=comment\n\n=value\nName\nName=right\n  \t\n#end");
    EXPECT_EQ(entry.value(u"Name"_s), u"right"_s);
    EXPECT_EQ(entry.value(QString()), QString());
}

TEST(DesktopEntry, IgnoresWhiteSpaceAroundKeysAndValues)
{
    const auto entry = entryWith("  Name \t=\t two  words \r\nIcon=icon\r");
    EXPECT_EQ(entry.value(u"Name"_s), u"two  words"_s);
    EXPECT_EQ(entry.value(u"Icon"_s), u"icon"_s);
}

TEST(DesktopEntry, ResolvesEscapes)
{
    EXPECT_EQ(entryWith(R"(Name=\sa\sb\nc\td\re\\f)").value(u"Name"_s), u" a b\nc\td\re\\f"_s);
    EXPECT_EQ(entryWith(R"(Name=\\n\\\\s)").value(u"Name"_s), uR"(\n\\s)"_s);
    EXPECT_EQ(entryWith(R"(Name[cs]=a\sb)").localizedValue(u"Name"_s, {u"cs"_s}), u"a b"_s);
}

TEST(DesktopEntry, KeepsWhatIsNoEscape)
{
    EXPECT_EQ(entryWith(R"(Keywords=a\;b;c)").value(u"Keywords"_s), uR"(a\;b;c)"_s);
    EXPECT_EQ(entryWith(R"(Name=a\)").value(u"Name"_s), uR"(a\)"_s);
}

TEST(DesktopEntry, PrefersTheFirstOfTheUsersLanguages)
{
    const auto entry = entryWith("Name=Files\nName[cs]=Soubory\nName[de]=Dateien");
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"cs-CZ"_s, u"de-DE"_s}), u"Soubory"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"de-DE"_s, u"cs-CZ"_s}), u"Dateien"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"sk-SK"_s, u"cs"_s}), u"Soubory"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"sk-SK"_s}), u"Files"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {}), u"Files"_s);
}

TEST(DesktopEntry, PrefersTheRegionToTheLanguageAlone)
{
    const auto entry = entryWith("Name=Files\nName[pt]=Ficheiros\nName[pt_BR]=Arquivos");
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"pt-BR"_s}), u"Arquivos"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"pt-PT"_s}), u"Ficheiros"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"pt"_s}), u"Ficheiros"_s);
}

TEST(DesktopEntry, DoesNotTakeTheTextOfAnotherRegion)
{
    EXPECT_EQ(entryWith("Name=Files\nName[pt_BR]=Arquivos").localizedValue(u"Name"_s, {u"pt-PT"_s}),
              u"Files"_s);
}

TEST(DesktopEntry, TakesTextsWithoutALanguageForEnglish)
{
    const auto entry = entryWith("Name=Colors\nName[cs]=Barvy\nName[en_GB]=Colours");
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"en-US"_s, u"cs-CZ"_s}), u"Colors"_s);
    EXPECT_EQ(entry.localizedValue(u"Name"_s, {u"en-GB"_s, u"cs-CZ"_s}), u"Colours"_s);
}

TEST(DesktopEntry, ReadsFlags)
{
    const auto entry = entryWith("Hidden=true\nNoDisplay=false\nTerminal=True\nStartupNotify=");
    for (const bool fallback : {false, true}) {
        EXPECT_TRUE(entry.flag(u"Hidden"_s, fallback));
        EXPECT_FALSE(entry.flag(u"NoDisplay"_s, fallback));
        EXPECT_FALSE(entry.flag(u"Terminal"_s, fallback));
        EXPECT_FALSE(entry.flag(u"StartupNotify"_s, fallback));
        EXPECT_EQ(entry.flag(u"DBusActivatable"_s, fallback), fallback);
    }
}

TEST(DesktopEntry, KnowsTheProgramThatItStarts)
{
    EXPECT_EQ(executableOf("keyvora"), u"keyvora"_s);
    EXPECT_EQ(executableOf("keyvora %U"), u"keyvora"_s);
    EXPECT_EQ(executableOf("/usr/bin/keyvora --new-window %f"), u"keyvora"_s);
    EXPECT_EQ(executableOf(R"("/opt/my apps/the program" "an argument")"), u"the program"_s);
    EXPECT_EQ(executableOf(R"("/opt/a\\"b/\\$c\\`d\\\\e" %F)"), u"$c`d\\e"_s);
    EXPECT_EQ(executableOf("/opt/100%%/50%%off"), u"50%off"_s);
}

TEST(DesktopEntry, KnowsWhenItStartsNone)
{
    EXPECT_EQ(entryWith("Name=Keyvora").executableName(), QString());
    for (const QByteArray &exec : {QByteArray(), QByteArray("   "), QByteArray(R"("")"), QByteArray("/"),
                                   QByteArray("/usr/bin/"), QByteArray(R"(")")})
        EXPECT_EQ(executableOf(exec), QString()) << exec.toStdString();
}

TEST(DesktopEntry, GetsBackWhatItQuoted)
{
    for (const auto &name :
         {u"keyvora"_s, u"key vora"_s, u" key  vora "_s, u"\"key\"vora\""_s, uR"(key\vora\)"_s,
          uR"(\\\s\n)"_s, u"100%"_s, u"%f%%U"_s, u"$HOME"_s, u"`id`"_s, u"key'vora"_s, u"a;b&c|d>e#f"_s,
          u"kůň ⌘"_s, u"key\tvora"_s, u"key\nvora"_s, u"key\rvora"_s, u"\\\"$`%\n "_s}) {
        const QString quoted = DesktopEntry::quotedForExec(u"/opt/the program/"_s + name);
        EXPECT_EQ(executableOf(quoted.toUtf8()), name) << quoted.toStdString();
        EXPECT_EQ(executableOf(quoted.toUtf8() + " --option %U"), name) << quoted.toStdString();
    }
}

TEST(DesktopEntry, GetsBackWhatItEscaped)
{
    for (const auto &text : {u"/usr/bin/keyvora"_s, u" key  vora "_s, uR"(\\\s\n)"_s, u"key\tvora\r"_s,
                             u"a\nHidden=true\n"_s, u"kůň ⌘"_s}) {
        const auto entry = entryWith("Name=" + DesktopEntry::escaped(text).toUtf8());
        EXPECT_EQ(entry.value(u"Name"_s), text);
        EXPECT_FALSE(entry.flag(u"Hidden"_s, false));
    }
}

TEST(DesktopEntry, QuotesSoThatNoLineIsAdded)
{
    const auto entry = entryWith("Exec=" + DesktopEntry::quotedForExec(u"/opt/a\nHidden=true"_s).toUtf8());
    EXPECT_EQ(entry.executableName(), u"a\nHidden=true"_s);
    EXPECT_FALSE(entry.flag(u"Hidden"_s, false));
}

TEST(DesktopEntry, SurvivesTextThatIsNone)
{
    const auto text =
        QByteArrayLiteral("[Desktop Entry]\nName=a\0b\nIcon=\xff\xfe\nExec=\0\n\0=\0\nComment=right\n");
    const auto entry = DesktopEntry::parse(text).value_or(DesktopEntry());
    EXPECT_EQ(entry.value(u"Name"_s), QString(u"a"_s + QChar(0) + u"b"_s));
    EXPECT_EQ(entry.value(u"Icon"_s), u"\uFFFD\uFFFD"_s);
    EXPECT_EQ(entry.executableName(), QString(QChar(0)));
    EXPECT_EQ(entry.value(u"Comment"_s), u"right"_s);
    EXPECT_FALSE(DesktopEntry::parse(QByteArray(100'000, '\0')));
}

TEST(ReadDesktopEntry, ReadsAFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"entry.desktop"_s);
    ASSERT_TRUE(writeFile(path, "[Desktop Entry]\nName=Kůň\n"));
    EXPECT_EQ(DesktopEntry::read(path).value_or(DesktopEntry()).value(u"Name"_s), u"Kůň"_s);
}

TEST(ReadDesktopEntry, IsNothingWithoutAFileThatHasTheGroup)
{
    const QTemporaryDir folder;
    EXPECT_FALSE(DesktopEntry::read(folder.filePath(u"missing"_s)));
    EXPECT_FALSE(DesktopEntry::read(QString()));
    ASSERT_TRUE(writeFile(folder.filePath(u"empty"_s), {}));
    EXPECT_FALSE(DesktopEntry::read(folder.filePath(u"empty"_s)));
    ASSERT_TRUE(writeFile(folder.filePath(u"other"_s), "[Other]\nName=x\n"));
    EXPECT_FALSE(DesktopEntry::read(folder.filePath(u"other"_s)));
}

TEST(ReadDesktopEntry, OpensRegularFilesOnly)
{
    const QTemporaryDir folder;
    const QString fifo = folder.filePath(u"fifo.desktop"_s);
    ASSERT_TRUE(makeFifo(fifo));
    ASSERT_TRUE(QFile::link(fifo, folder.filePath(u"link.desktop"_s)));
    EXPECT_FALSE(DesktopEntry::read(fifo));
    EXPECT_FALSE(DesktopEntry::read(folder.filePath(u"link.desktop"_s)));
    EXPECT_FALSE(DesktopEntry::read(folder.path()));
    EXPECT_FALSE(DesktopEntry::read(u"/dev/zero"_s));
}

TEST(ReadDesktopEntry, ReadsUpToTheLargestFileThatCanBeOne)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"entry.desktop"_s);
    QByteArray text = "[Desktop Entry]\nName=right\n";
    text.append(QByteArray(DesktopEntry::maximumFileBytes - text.size(), '#'));
    ASSERT_TRUE(writeFile(path, text));
    EXPECT_EQ(DesktopEntry::read(path).value_or(DesktopEntry()).value(u"Name"_s), u"right"_s);
    ASSERT_TRUE(writeFile(path, text + '#'));
    EXPECT_FALSE(DesktopEntry::read(path));
}

} // namespace keyvora
