// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Workspace.h"

#include "contract/BareScreen.h"
#include "contract/PlatformPrinters.h"
#include "contract/Waiting.h"
#include "contract/X11Desktop.h"
#include "unit/platform/linux/Files.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A screen on which the test is the window manager, and a workspace that looks at it.
class X11WorkspaceTest : public testing::Test
{
protected:
    BareScreen &screen() { return m_screen; }
    X11Desktop &desktop() { return m_desktop; }

    void addEntry(const QString &file, const QByteArray &lines)
    {
        EXPECT_TRUE(writeFile(m_folder.filePath(u"applications/"_s + file), "[Desktop Entry]\n" + lines));
    }

    Workspace &makeWorkspace()
    {
        m_workspace =
            std::make_unique<X11Workspace>(*m_connection, ApplicationNames({m_folder.path()}, {u"cs-CZ"_s}));
        QObject::connect(m_workspace.get(), &Workspace::applicationActivated, m_workspace.get(),
                         [this](const RunningApplication &application) { m_told.append(application); });
        return *m_workspace;
    }

    void endWorkspace() { m_workspace.reset(); }

    X11Connection &connection() { return *m_connection; }

    /// Calls the function once, when the workspace has dealt with the event.
    void onNextEvent(const std::function<void()> &function)
    {
        QObject::connect(m_connection.get(), &X11Connection::eventReceived, m_connection.get(), function,
                         static_cast<Qt::ConnectionType>(Qt::SingleShotConnection));
    }

    /// So many that looking for a name takes a moment.
    void addManyEntries()
    {
        for (int number = 0; number < 500; ++number)
            addEntry(u"other-%1.desktop"_s.arg(number), "Name=Other\nStartupWMClass=Other\n");
    }

    xcb_window_t makeWindow(const QByteArray &windowClass, quint32 pid, const QByteArray &type = {})
    {
        return m_desktop.makeWindow(
            {.instance = "main", .windowClass = windowClass, .pid = pid, .type = type});
    }

    /// Announces a window and waits until the workspace has read it.
    void announce(const QList<quint32> &values)
    {
        m_desktop.setActiveWindow(values);
        finishReading();
    }

    /// Waits until the workspace has read whatever is announced.
    void finishReading()
    {
        bool hasNoticed = false;
        const QMetaObject::Connection listening =
            QObject::connect(m_connection.get(), &X11Connection::eventReceived, m_connection.get(),
                             [&](const xcb_generic_event_t *event) {
                                 const auto *change =
                                     reinterpret_cast<const xcb_property_notify_event_t *>(event);
                                 if (event->response_type == XCB_PROPERTY_NOTIFY &&
                                     change->atom == m_connection->atom("_KEYVORA_FENCE"))
                                     hasNoticed = true;
                             });
        m_desktop.setRootProperty("_KEYVORA_FENCE", XCB_ATOM_STRING, "x");
        EXPECT_TRUE(becomesTrue([&] { return hasNoticed; }));
        QObject::disconnect(listening);
        // Answers come in order: first which window it is, then what it tells.
        for (int answers = 0; answers < 2; ++answers) {
            bool isAnswered = false;
            m_connection->readProperty(m_connection->root(), "_KEYVORA_FENCE", 4,
                                       [&](const QByteArray &) { isAnswered = true; });
            EXPECT_TRUE(becomesTrue([&] { return isAnswered; }));
        }
    }

    /// What the workspace says of the applications whose windows are in the task list.
    QList<RunningApplication> running(const QList<quint32> &taskList)
    {
        m_desktop.setClientList(taskList);
        return running();
    }
    QList<RunningApplication> running()
    {
        const QFuture<QList<RunningApplication>> future = m_workspace->runningApplications();
        EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
        return future.result();
    }

    /// Whether the workspace tells of this application, now or soon.
    bool isTold(const RunningApplication &application)
    {
        return becomesTrue([&] { return m_told.contains(application); });
    }

    /// Brings something else to the front and gives what has been told before that.
    QList<RunningApplication> toldUntilNow()
    {
        const RunningApplication last{u"Last"_s, 9999};
        m_desktop.setActiveWindow({makeWindow("Last", 9999)});
        EXPECT_TRUE(isTold(last));
        m_told.removeAll(last);
        return m_told;
    }

private:
    BareScreen m_screen;
    X11Desktop m_desktop{m_screen.display()};
    QTemporaryDir m_folder;
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    std::unique_ptr<X11Workspace> m_workspace;
    QList<RunningApplication> m_told;
};

} // namespace

TEST_F(X11WorkspaceTest, NamesApplicationsInTheUsersLanguage)
{
    addEntry(u"editor.desktop"_s, "Name=Editor\nName[cs]=Textový editor\n");
    makeWorkspace();
    announce({makeWindow("Editor", 1)});
    EXPECT_TRUE(isTold({u"Textový editor"_s, 1}));
    EXPECT_EQ(toldUntilNow(), (QList<RunningApplication>{{u"Textový editor"_s, 1}}));
}

TEST_F(X11WorkspaceTest, FindsTheNameOfWhatIsInFrontFromTheBeginning)
{
    addEntry(u"editor.desktop"_s, "Name[cs]=Textový editor\n");
    desktop().setActiveWindow({makeWindow("Editor", 1)});
    Workspace &workspace = makeWorkspace();
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Editor"_s, 1}));
    EXPECT_TRUE(becomesTrue([&] {
        return workspace.frontmostApplication() == RunningApplication{u"Textový editor"_s, 1};
    }));
    EXPECT_EQ(toldUntilNow(), (QList<RunningApplication>{{u"Textový editor"_s, 1}}));
}

TEST_F(X11WorkspaceTest, FindsNamesByTheApplicationId)
{
    addEntry(u"org.example.Editor.desktop"_s, "Name=By the id\n");
    Workspace &workspace = makeWorkspace();
    const xcb_window_t window = makeWindow("Unknown", 1);
    desktop().setProperty(window, "_GTK_APPLICATION_ID", XCB_ATOM_STRING, "org.example.Editor");
    announce({window});
    EXPECT_TRUE(becomesTrue([&] {
        return workspace.frontmostApplication() == RunningApplication{u"By the id"_s, 1};
    }));
}

TEST_F(X11WorkspaceTest, ReadsTheFirstOfTwoActiveWindows)
{
    const Workspace &workspace = makeWorkspace();
    announce({makeWindow("Editor", 1), XCB_WINDOW_NONE});
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Editor"_s, 1}));
    announce({XCB_WINDOW_NONE, makeWindow("Viewer", 2)});
    EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
}

TEST_F(X11WorkspaceTest, HasNothingInFrontWhereTheAnnouncementIsNoWindow)
{
    const Workspace &workspace = makeWorkspace();
    const xcb_window_t editor = makeWindow("Editor", 1);
    const std::function<void()> announcements[] = {
        [&] { desktop().setActiveWindow({}); },
        [&] { desktop().setActiveWindow({0xFFFFFFFF}); },
        [&] { desktop().setRootProperty("_NET_ACTIVE_WINDOW", XCB_ATOM_STRING, "ab"); },
        [&] { desktop().setRootProperty("_NET_ACTIVE_WINDOW", XCB_ATOM_STRING, QByteArray(100'000, 'x')); },
        [&] { desktop().removeRootProperty("_NET_ACTIVE_WINDOW"); },
    };
    for (const auto &announceNothing : announcements) {
        announce({editor});
        EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Editor"_s, 1}));
        announceNothing();
        finishReading();
        EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
    }
    EXPECT_FALSE(toldUntilNow().contains(RunningApplication()));
}

TEST_F(X11WorkspaceTest, HasNothingInFrontWhenTheWindowIsGoneAlready)
{
    const Workspace &workspace = makeWorkspace();
    const xcb_window_t window = makeWindow("Editor", 1);
    announce({makeWindow("Viewer", 2)});
    desktop().setActiveWindow({window});
    desktop().destroy(window);
    finishReading();
    EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
    EXPECT_FALSE(toldUntilNow().contains(RunningApplication()));
}

TEST_F(X11WorkspaceTest, StartsWithNothingWhenTheWindowIsGoneAlready)
{
    const xcb_window_t window = makeWindow("Editor", 1);
    desktop().setActiveWindow({window});
    desktop().destroy(window);
    EXPECT_EQ(makeWorkspace().frontmostApplication(), std::nullopt);
    EXPECT_EQ(toldUntilNow(), QList<RunningApplication>());
}

TEST_F(X11WorkspaceTest, TakesNoNoticeOfPartsOfTheDesktop)
{
    const Workspace &workspace = makeWorkspace();
    announce({makeWindow("Editor", 1)});
    EXPECT_TRUE(isTold({u"Editor"_s, 1}));
    for (const QByteArray &type :
         {QByteArray("_NET_WM_WINDOW_TYPE_DOCK"), QByteArray("_NET_WM_WINDOW_TYPE_DESKTOP")}) {
        announce({makeWindow("Panel", 3, type)});
        EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Editor"_s, 1}))
            << type.toStdString();
    }
    EXPECT_EQ(toldUntilNow(), (QList<RunningApplication>{{u"Editor"_s, 1}}));
}

TEST_F(X11WorkspaceTest, WeAreNotInFrontOfTheDesktop)
{
    const auto ourselves = static_cast<qint32>(QCoreApplication::applicationPid());
    const Workspace &workspace = makeWorkspace();
    for (const QByteArray &type :
         {QByteArray("_NET_WM_WINDOW_TYPE_DOCK"), QByteArray("_NET_WM_WINDOW_TYPE_DESKTOP")}) {
        announce({makeWindow("Keyvora", static_cast<quint32>(ourselves))});
        EXPECT_TRUE(becomesTrue([&] {
            return workspace.frontmostApplication() == RunningApplication{u"Keyvora"_s, ourselves};
        }));
        announce({makeWindow("Panel", 3, type)});
        EXPECT_TRUE(becomesTrue([&] { return !workspace.frontmostApplication(); })) << type.toStdString();
    }
}

TEST_F(X11WorkspaceTest, NamesWhatIsInFrontWhileAPanelHasTheFocus)
{
    addManyEntries();
    addEntry(u"editor.desktop"_s, "Name[cs]=Textový editor\n");
    desktop().setActiveWindow({makeWindow("Editor", 1)});
    const Workspace &workspace = makeWorkspace();
    // The panel is likely to be there before the name is found.
    announce({makeWindow("Panel", 3, "_NET_WM_WINDOW_TYPE_DOCK")});
    EXPECT_TRUE(becomesTrue([&] {
        return workspace.frontmostApplication() == RunningApplication{u"Textový editor"_s, 1};
    }));
}

TEST_F(X11WorkspaceTest, TakesNoticeOfEveryOtherWindow)
{
    const Workspace &workspace = makeWorkspace();
    announce({makeWindow("Dialog", 3, "_NET_WM_WINDOW_TYPE_DIALOG")});
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Dialog"_s, 3}));
}

TEST_F(X11WorkspaceTest, TakesWhatAWindowTells)
{
    struct Row
    {
        X11Desktop::WindowProperties window;
        RunningApplication application;
    };
    const Row rows[] = {
        {{.instance = "main", .windowClass = "Editor"}, {u"Editor"_s, std::nullopt}},
        {{.instance = "main", .windowClass = "", .pid = 2}, {u"main"_s, 2}},
        {{.pid = 3}, {QString(), 3}},
        {{.instance = "main", .windowClass = "Editor", .pid = 0}, {u"Editor"_s, std::nullopt}},
        {{.instance = "main", .windowClass = "Editor", .pid = 0xFFFFFFFF}, {u"Editor"_s, std::nullopt}},
    };
    const Workspace &workspace = makeWorkspace();
    for (const Row &row : rows) {
        announce({desktop().makeWindow(row.window)});
        EXPECT_EQ(workspace.frontmostApplication(), row.application);
    }
}

TEST_F(X11WorkspaceTest, MakesHarmlessWhatAWindowTells)
{
    const Workspace &workspace = makeWorkspace();
    const xcb_window_t window = makeWindow(QByteArray("Ed\n\x1b\xe2\x80\xae itor").append(100'000, 'x'), 1);
    desktop().setProperty(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_STRING, "abc");
    desktop().setProperty(window, "_GTK_APPLICATION_ID", XCB_ATOM_STRING, QByteArray(100'000, '\0'));
    announce({window});
    const QString name = workspace.frontmostApplication().value_or(RunningApplication()).name;
    EXPECT_TRUE(name.startsWith("Ed itorx"_L1)) << name.toStdString();
    EXPECT_LE(name.size(), 100);
}

TEST_F(X11WorkspaceTest, DropsANameThatComesTooLate)
{
    addManyEntries();
    addEntry(u"editor.desktop"_s, "Name[cs]=Textový editor\n");
    desktop().setActiveWindow({makeWindow("Editor", 1)});
    const Workspace &workspace = makeWorkspace();
    // The viewer is likely to be there before the editor's name is found.
    announce({makeWindow("Viewer", 2)});
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Viewer"_s, 2}));
    toldUntilNow();
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Last"_s, 9999}));
}

TEST_F(X11WorkspaceTest, TellsANameThatComesWhenOurOwnWindowIsInFrontAlready)
{
    const auto ourPid = static_cast<qint32>(QCoreApplication::applicationPid());
    addManyEntries();
    addEntry(u"editor.desktop"_s, "Name[cs]=Textový editor\nStartupWMClass=Editor\n");
    const Workspace &workspace = makeWorkspace();
    announce({makeWindow("Editor", 1)});
    // We are likely to be there before the editor's name is found.
    announce({makeWindow("Ours", static_cast<quint32>(ourPid))});
    EXPECT_TRUE(isTold({u"Textový editor"_s, 1}));
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Ours"_s, ourPid}));
}

TEST_F(X11WorkspaceTest, RemembersNames)
{
    addEntry(u"editor.desktop"_s, "Name[cs]=Textový editor\n");
    const Workspace &workspace = makeWorkspace();
    announce({makeWindow("Editor", 1)});
    EXPECT_TRUE(becomesTrue([&] {
        return workspace.frontmostApplication() == RunningApplication{u"Textový editor"_s, 1};
    }));
    addEntry(u"editor.desktop"_s, "Name[cs]=Jiný editor\n");
    announce({makeWindow("Editor", 2)});
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Textový editor"_s, 2}));
}

TEST_F(X11WorkspaceTest, MayEndBeforeItKnowsWhichWindowIsActive)
{
    makeWorkspace();
    // The workspace hears of the event first and asks.
    onNextEvent([this] { endWorkspace(); });
    announce({makeWindow("Editor", 1)});
    makeWorkspace();
    EXPECT_FALSE(toldUntilNow().contains(RunningApplication()));
}

TEST_F(X11WorkspaceTest, MayEndBeforeItKnowsWhatTheWindowTells)
{
    makeWorkspace();
    onNextEvent([this] {
        // The answer to this one follows the workspace's, upon which it asks more.
        connection().readProperty(connection().root(), "_NET_ACTIVE_WINDOW", 4,
                                  [this](const QByteArray &) { endWorkspace(); });
    });
    announce({makeWindow("Editor", 1)});
    makeWorkspace();
    EXPECT_FALSE(toldUntilNow().contains(RunningApplication()));
}

TEST_F(X11WorkspaceTest, KeepsWhatItKnowsWhenTheServerEnds)
{
    desktop().setActiveWindow({makeWindow("Editor", 1)});
    Workspace &workspace = makeWorkspace();
    screen().end();
    QCoreApplication::processEvents();
    EXPECT_EQ(workspace.frontmostApplication(), (RunningApplication{u"Editor"_s, 1}));
}

TEST_F(X11WorkspaceTest, ListsEachProcessOnceInTheDesktopsOrder)
{
    makeWorkspace();
    EXPECT_EQ(running({makeWindow("Viewer", 2), makeWindow("Editor", 1), makeWindow("Tools", 1),
                       makeWindow("Viewer", 2), makeWindow("Viewer", 3)}),
              (QList<RunningApplication>{{u"Viewer"_s, 2}, {u"Editor"_s, 1}, {u"Viewer"_s, 3}}));
}

TEST_F(X11WorkspaceTest, ListsNamesInTheUsersLanguage)
{
    addEntry(u"editor.desktop"_s, "Name=Editor\nName[cs]=Textový editor\n");
    addEntry(u"viewer.desktop"_s, "Name=Viewer\nName[cs]=Prohlížeč\n");
    makeWorkspace();
    const QList<RunningApplication> expected{
        {u"Prohlížeč"_s, 2}, {u"Textový editor"_s, 1}, {u"Unknown"_s, 3}, {u"Textový editor"_s, 4}};
    const QList<quint32> windows{makeWindow("Viewer", 2), makeWindow("Editor", 1), makeWindow("Unknown", 3),
                                 makeWindow("Editor", 4)};
    EXPECT_EQ(running(windows), expected);
    // From then on the names are known.
    addEntry(u"viewer.desktop"_s, "Name[cs]=Jiný prohlížeč\n");
    EXPECT_EQ(running(windows), expected);
    announce({windows.first()});
    EXPECT_EQ(toldUntilNow(), (QList<RunningApplication>{{u"Prohlížeč"_s, 2}}));
}

TEST_F(X11WorkspaceTest, KnowsTheNameOfWhatHasBeenInFront)
{
    addEntry(u"editor.desktop"_s, "Name[cs]=Textový editor\n");
    makeWorkspace();
    const xcb_window_t editor = makeWindow("Editor", 1);
    announce({editor});
    EXPECT_TRUE(isTold({u"Textový editor"_s, 1}));
    addEntry(u"editor.desktop"_s, "Name[cs]=Jiný editor\n");
    EXPECT_EQ(running({editor}), (QList<RunningApplication>{{u"Textový editor"_s, 1}}));
}

TEST_F(X11WorkspaceTest, ListsOrdinaryWindowsOnly)
{
    const struct
    {
        QByteArray type;
        QByteArray state;
        bool isOrdinary;
    } rows[] = {
        {"", "", true},
        {"_NET_WM_WINDOW_TYPE_NORMAL", "", true},
        {"_NET_WM_WINDOW_TYPE_NORMAL", "_NET_WM_STATE_MAXIMIZED_VERT", true},
        {"", "_NET_WM_STATE_HIDDEN", true},
        {"", "_NET_WM_STATE_SKIP_TASKBAR", false},
        {"_NET_WM_WINDOW_TYPE_NORMAL", "_NET_WM_STATE_SKIP_TASKBAR", false},
        {"_NET_WM_WINDOW_TYPE_DIALOG", "", false},
        {"_NET_WM_WINDOW_TYPE_UTILITY", "", false},
        {"_NET_WM_WINDOW_TYPE_DOCK", "", false},
        {"_NET_WM_WINDOW_TYPE_DESKTOP", "", false},
    };
    makeWorkspace();
    for (const auto &[type, state, isOrdinary] : rows) {
        const xcb_window_t window = desktop().makeWindow(
            {.instance = "main", .windowClass = "Editor", .pid = 1, .type = type, .state = state});
        const QList<RunningApplication> editor{{u"Editor"_s, 1}};
        EXPECT_EQ(running({window}), isOrdinary ? editor : QList<RunningApplication>())
            << type.toStdString() << ' ' << state.toStdString();
        // Another window of the same process stands for it.
        EXPECT_EQ(running({window, makeWindow("Editor", 1)}), editor);
    }
}

TEST_F(X11WorkspaceTest, ListsNoWindowsThatBelongToNobody)
{
    makeWorkspace();
    const xcb_window_t gone = makeWindow("Gone", 3);
    desktop().destroy(gone);
    EXPECT_EQ(
        running({gone, XCB_WINDOW_NONE, 0xFFFFFFFF,
                 desktop().makeWindow({.instance = "main", .windowClass = "Remote"}),
                 desktop().makeWindow({.instance = "main", .windowClass = "Wrong", .pid = 0xFFFFFFFF})}),
        QList<RunningApplication>());
    EXPECT_EQ(running({gone, makeWindow("Editor", 1), gone}), (QList<RunningApplication>{{u"Editor"_s, 1}}));
}

TEST_F(X11WorkspaceTest, ListsNothingWhereTheTaskListIsNone)
{
    makeWorkspace();
    EXPECT_EQ(running(), QList<RunningApplication>());
    desktop().setRootProperty("_NET_CLIENT_LIST", XCB_ATOM_STRING, "abc");
    EXPECT_EQ(running(), QList<RunningApplication>());
    desktop().setRootProperty("_NET_CLIENT_LIST", XCB_ATOM_STRING, QByteArray(100'000, 'x'));
    EXPECT_EQ(running(), QList<RunningApplication>());
}

TEST_F(X11WorkspaceTest, ListsNoMoreThanAnyDesktopHas)
{
    makeWorkspace();
    QList<quint32> windows(4095, XCB_WINDOW_NONE);
    windows += {makeWindow("Last", 1), makeWindow("Beyond", 2)};
    EXPECT_EQ(running(windows), (QList<RunningApplication>{{u"Last"_s, 1}}));
}

TEST_F(X11WorkspaceTest, MayEndBeforeItHasListedWhatRuns)
{
    addManyEntries();
    desktop().setClientList({makeWindow("Editor", 1), makeWindow("Viewer", 2)});
    // Each answer is one more to a question of the workspace; at last, names are being looked for.
    for (int answers = 0; answers < 4; ++answers) {
        const QFuture<QList<RunningApplication>> future = makeWorkspace().runningApplications();
        for (int answer = 0; answer < answers; ++answer) {
            bool isAnswered = false;
            connection().readProperty(connection().root(), "_KEYVORA_FENCE", 4,
                                      [&](const QByteArray &) { isAnswered = true; });
            EXPECT_TRUE(becomesTrue([&] { return isAnswered; }));
        }
        endWorkspace();
        EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
    }
}

} // namespace keyvora
