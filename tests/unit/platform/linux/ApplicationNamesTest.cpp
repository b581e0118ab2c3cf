// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/ApplicationNames.h"

#include "unit/QtPrinters.h"
#include "unit/platform/linux/Files.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Folders of entries, the user's own and the system's.
class DataDirs
{
public:
    void addOwn(const QString &file, const QByteArray &lines) { add(u"own"_s, file, lines); }
    void addSystem(const QString &file, const QByteArray &lines) { add(u"system"_s, file, lines); }
    void removeSystem(const QString &file) { EXPECT_TRUE(QFile::remove(path(u"system"_s, file))); }

    [[nodiscard]] QString path(const QString &dir, const QString &file) const
    {
        return m_folder.filePath(dir + u"/applications/"_s + file);
    }

    [[nodiscard]] QString find(const WindowIdentity &identity,
                               const QStringList &languages = {u"en-US"_s}) const
    {
        return findAll({identity}, languages).value(identity);
    }

    [[nodiscard]] QHash<WindowIdentity, QString> findAll(const QList<WindowIdentity> &identities,
                                                         const QStringList &languages = {u"en-US"_s}) const
    {
        return ApplicationNames({m_folder.filePath(u"own"_s), m_folder.filePath(u"missing"_s),
                                 m_folder.filePath(u"system"_s)},
                                languages)
            .find(identities);
    }

private:
    void add(const QString &dir, const QString &file, const QByteArray &lines)
    {
        EXPECT_TRUE(writeFile(path(dir, file), "[Desktop Entry]\nType=Application\n" + lines));
    }

    QTemporaryDir m_folder;
};

const WindowIdentity editorWindow{
    .windowClass = u"Editor"_s,
    .windowInstance = u"editor-main"_s,
    .gtkApplicationId = u"org.example.Editor"_s,
};

WindowIdentity withClass(const QString &windowClass)
{
    return {.windowClass = windowClass, .windowInstance = {}, .gtkApplicationId = {}};
}

WindowIdentity withInstance(const QString &windowInstance)
{
    return {.windowClass = {}, .windowInstance = windowInstance, .gtkApplicationId = {}};
}

WindowIdentity withApplicationId(const QString &gtkApplicationId)
{
    return {.windowClass = {}, .windowInstance = {}, .gtkApplicationId = gtkApplicationId};
}

} // namespace

TEST(ApplicationNames, FindTheBestOfAllEntriesThatFit)
{
    const std::pair<QString, QByteArray> bestFirst[] = {
        {u"a.desktop"_s, "Name=class for start-up\nStartupWMClass=Editor\n"},
        {u"b.desktop"_s, "Name=instance for start-up\nStartupWMClass=editor-main\n"},
        {u"org.example.Editor.desktop"_s, "Name=application id\n"},
        {u"editor.desktop"_s, "Name=file like the class\n"},
        {u"editor-main.desktop"_s, "Name=file like the instance\n"},
        {u"c.desktop"_s, "Name=program like the class\nExec=/usr/bin/editor %U\n"},
        {u"d.desktop"_s, "Name=program like the instance\nExec=editor-main\n"},
    };
    DataDirs dirs;
    dirs.addSystem(u"z.desktop"_s, "Name=another one\nStartupWMClass=Viewer\nExec=viewer\n");
    for (const auto &[file, lines] : bestFirst)
        dirs.addSystem(file, lines);
    for (const auto &[file, lines] : bestFirst) {
        const QByteArray name = lines.mid(5, lines.indexOf('\n') - 5);
        EXPECT_EQ(dirs.find(editorWindow), QString::fromUtf8(name));
        dirs.removeSystem(file);
    }
    EXPECT_EQ(dirs.find(editorWindow), QString());
}

TEST(ApplicationNames, TakeTheFirstByFileNameOfEquallyGoodEntries)
{
    DataDirs dirs;
    for (const auto *file : {"c", "a", "d", "b"})
        dirs.addSystem(QString::fromLatin1(file) + u".desktop"_s,
                       QByteArray("StartupWMClass=Editor\nName=Editor ") + file + '\n');
    EXPECT_EQ(dirs.find(editorWindow), u"Editor a"_s);
}

TEST(ApplicationNames, DoNotDependOnCase)
{
    DataDirs dirs;
    dirs.addSystem(u"a.desktop"_s, "Name=Editor\nStartupWMClass=eDITOR\n");
    EXPECT_EQ(dirs.find(withClass(u"Editor"_s)), u"Editor"_s);
    dirs.addSystem(u"ORG.Example.Viewer.desktop"_s, "Name=Viewer\n");
    EXPECT_EQ(dirs.find(withApplicationId(u"org.example.viewer"_s)), u"Viewer"_s);
    dirs.addSystem(u"b.desktop"_s, "Name=Painter\nExec=/opt/Painter\n");
    EXPECT_EQ(dirs.find(withInstance(u"painter"_s)), u"Painter"_s);
}

TEST(ApplicationNames, FindNothingForAWindowThatTellsNothing)
{
    DataDirs dirs;
    dirs.addSystem(u"a.desktop"_s, "Name=Editor\n");
    dirs.addSystem(u"b.desktop"_s, "Name=Viewer\nStartupWMClass=\nExec=\n");
    EXPECT_EQ(dirs.find({}), QString());
    EXPECT_EQ(dirs.find(withClass(u"Unknown"_s)), QString());
    EXPECT_TRUE(ApplicationNames({}, {}).find({editorWindow}).isEmpty());
}

TEST(ApplicationNames, FindsThoseOfManyWindowsAtOnce)
{
    DataDirs dirs;
    dirs.addSystem(u"a.desktop"_s, "Name=Editor\nStartupWMClass=Editor\n");
    dirs.addSystem(u"b.desktop"_s, "Name=Viewer\nStartupWMClass=Viewer\n");
    dirs.addSystem(u"viewer.desktop"_s, "Name=Another viewer\n");
    const QHash<WindowIdentity, QString> names =
        dirs.findAll({withClass(u"Viewer"_s), withClass(u"Unknown"_s), withClass(u"Editor"_s)});
    const QHash<WindowIdentity, QString> expected = {
        {withClass(u"Viewer"_s), u"Viewer"_s},
        {withClass(u"Editor"_s), u"Editor"_s},
    };
    EXPECT_EQ(names, expected);
}

TEST(ApplicationNames, AreInTheUsersLanguage)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=Editor\nName[cs]=Textový editor\nName[de]=Bearbeiter\n");
    EXPECT_EQ(dirs.find(editorWindow, {u"cs-CZ"_s}), u"Textový editor"_s);
    EXPECT_EQ(dirs.find(editorWindow, {u"sk-SK"_s, u"de-DE"_s}), u"Bearbeiter"_s);
    EXPECT_EQ(dirs.find(editorWindow, {u"en-US"_s, u"cs-CZ"_s}), u"Editor"_s);
    EXPECT_EQ(dirs.find(editorWindow, {}), u"Editor"_s);
}

TEST(ApplicationNames, AreNotThoseOfActions)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s,
                   "Name=Editor\n[Desktop Action new]\nName=New Window\nName[cs]=Nové okno\n");
    EXPECT_EQ(dirs.find(editorWindow, {u"cs-CZ"_s}), u"Editor"_s);
}

TEST(ApplicationNames, PreferTheUsersOwnEntryToTheSystemsOfTheSameName)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=The system's\nStartupWMClass=Editor\n");
    dirs.addOwn(u"editor.desktop"_s, "Name=The user's\n");
    EXPECT_EQ(dirs.find(editorWindow), u"The user's"_s);
}

TEST(ApplicationNames, PreferTheUsersOwnEntryWhereBothFitEqually)
{
    DataDirs dirs;
    dirs.addSystem(u"a.desktop"_s, "Name=The system's\nStartupWMClass=Editor\n");
    dirs.addOwn(u"b.desktop"_s, "Name=The user's\nStartupWMClass=Editor\n");
    EXPECT_EQ(dirs.find(editorWindow), u"The user's"_s);
}

TEST(ApplicationNames, PreferTheBetterFitToTheUsersOwnEntry)
{
    DataDirs dirs;
    dirs.addSystem(u"a.desktop"_s, "Name=The system's\nStartupWMClass=Editor\n");
    dirs.addOwn(u"editor.desktop"_s, "Name=The user's\n");
    EXPECT_EQ(dirs.find(editorWindow), u"The system's"_s);
}

TEST(ApplicationNames, TakeAHiddenEntryForADeletedOne)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=Editor\n");
    dirs.addOwn(u"editor.desktop"_s, "Name=Editor\nHidden=true\n");
    EXPECT_EQ(dirs.find(editorWindow), QString());
}

TEST(ApplicationNames, ReadEntriesThatNoMenuShows)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=Editor\nNoDisplay=true\n");
    EXPECT_EQ(dirs.find(editorWindow), u"Editor"_s);
}

TEST(ApplicationNames, JoinSubfoldersToTheNameOfTheFile)
{
    DataDirs dirs;
    dirs.addSystem(u"vendor/tools/editor.desktop"_s, "Name=Editor\n");
    EXPECT_EQ(dirs.find(withClass(u"vendor-tools-editor"_s)), u"Editor"_s);
    EXPECT_EQ(dirs.find(withClass(u"editor"_s)), QString());
    dirs.addOwn(u"vendor-tools-editor.desktop"_s, "Name=The user's\n");
    EXPECT_EQ(dirs.find(withClass(u"vendor-tools-editor"_s)), u"The user's"_s);
}

TEST(ApplicationNames, PassOverAnEntryWithoutAName)
{
    DataDirs dirs;
    dirs.addSystem(u"a.desktop"_s, "StartupWMClass=Editor\n");
    dirs.addSystem(u"b.desktop"_s, "StartupWMClass=Editor\nName=\\n\\t\n");
    dirs.addSystem(u"editor.desktop"_s, "Name=Editor\n");
    EXPECT_EQ(dirs.find(editorWindow), u"Editor"_s);
}

TEST(ApplicationNames, PassOverWhatIsNoEntry)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.txt"_s, "Name=Not an entry\n");
    dirs.addSystem(u"editor-main.desktop"_s, "Name=Editor\n");
    ASSERT_TRUE(writeFile(dirs.path(u"system"_s, u"a.desktop"_s), "Name=No group\nStartupWMClass=Editor\n"));
    ASSERT_TRUE(makeFifo(dirs.path(u"system"_s, u"editor.desktop"_s)));
    ASSERT_TRUE(QDir().mkpath(dirs.path(u"system"_s, u"org.example.Editor.desktop"_s)));
    ASSERT_TRUE(QFile::link(u"/nowhere"_s, dirs.path(u"system"_s, u"b.desktop"_s)));
    EXPECT_EQ(dirs.find(editorWindow), u"Editor"_s);
}

TEST(ApplicationNames, DoNotFollowFoldersInCircles)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=Editor\n");
    ASSERT_TRUE(QFile::link(dirs.path(u"system"_s, {}), dirs.path(u"system"_s, u"circle"_s)));
    EXPECT_EQ(dirs.find(editorWindow), u"Editor"_s);
    EXPECT_EQ(dirs.find(withClass(u"circle-editor"_s)), QString());
}

TEST(ApplicationNames, AreHarmlessToShow)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=Ed\\n\\tit\x1b[1m\u202Eor\n");
    EXPECT_EQ(dirs.find(editorWindow), u"Ed it [1m or"_s);
}

TEST(ApplicationNames, AreCutWhereTheyAreEndless)
{
    DataDirs dirs;
    dirs.addSystem(u"editor.desktop"_s, "Name=" + QByteArray(1'000'000, 'e') + '\n');
    const QString name = dirs.find(editorWindow);
    EXPECT_EQ(name, QString(99, u'e') + u'…');
}

TEST(FallbackName, IsTheClassOrElseTheInstance)
{
    EXPECT_EQ(ApplicationNames::fallback(editorWindow), u"Editor"_s);
    EXPECT_EQ(ApplicationNames::fallback(withInstance(u"editor-main"_s)), u"editor-main"_s);
    EXPECT_EQ(ApplicationNames::fallback(withApplicationId(u"org.example.Editor"_s)), QString());
}

TEST(FallbackName, IsHarmlessToShow)
{
    EXPECT_EQ(ApplicationNames::fallback(withClass(u"Ed\n\u001Bitor\u202E"_s)), u"Ed itor"_s);
    EXPECT_EQ(ApplicationNames::fallback(withClass(QString(1'000'000, u'e'))), QString(99, u'e') + u'…');
}

} // namespace keyvora
