// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "windows/UserInterfaceFixture.h"

#include <QSignalSpy>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

using MainWindowTest = QmlUserInterfaceTest;

} // namespace

TEST_F(MainWindowTest, APreparedMainWindowIsShownWhenItShouldBe)
{
    userInterface().prepareMainWindow();
    userInterface().prepareMainWindow();
    EXPECT_EQ(nullptr, mainWindow());
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    ASSERT_NE(nullptr, window);
    EXPECT_EQ(QQuickView::Ready, window->status());
    EXPECT_TRUE(becomesTrue([&] { return window->isExposed(); }));
    userInterface().prepareMainWindow();
    EXPECT_EQ(window, mainWindow());
}

TEST_F(MainWindowTest, APreparedMainWindowMayNeverBeShown)
{
    userInterface().prepareMainWindow();
    userInterface().showOverlay();
    EXPECT_NE(nullptr, overlay());
    EXPECT_EQ(nullptr, mainWindow());
    keepNoClosedWindow();
    userInterface().prepareMainWindow();
}

TEST_F(MainWindowTest, TheMainWindowComesUpBeforeWhatItShows)
{
    userInterface().showMainWindow({});
    const QQuickView &window = *mainWindow();
    EXPECT_EQ(nullptr, find(window, "ContentView"));
    int framesBefore = 0;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window,
                     [&] { framesBefore += find(window, "ContentView") == nullptr ? 1 : 0; });
    EXPECT_NE(nullptr, findSoon(window, "ContentView"));
    EXPECT_GT(framesBefore, 0);
}

TEST_F(MainWindowTest, WhatTheMainWindowShowsIsThereForTheFirstKey)
{
    userInterface().showMainWindow({});
    ASSERT_EQ(nullptr, find(*mainWindow(), "ContentView"));
    QTest::keyClick(mainWindow(), Qt::Key_End);
    EXPECT_NE(nullptr, find(*mainWindow(), "ContentView"));
}

TEST_F(MainWindowTest, WhatTheMainWindowShowsIsThereForTheFirstClick)
{
    userInterface().showMainWindow({});
    ASSERT_EQ(nullptr, find(*mainWindow(), "ContentView"));
    QTest::mousePress(mainWindow(), Qt::LeftButton, {}, QPoint(100, 600));
    EXPECT_NE(nullptr, find(*mainWindow(), "ContentView"));
}

TEST_F(MainWindowTest, NothingIsMadeForAWindowThatIsClosedAtOnce)
{
    // Before what it shows is read, and meanwhile.
    for (const Qt::ConnectionType moment : {Qt::DirectConnection, Qt::QueuedConnection}) {
        makeAnew();
        userInterface().showMainWindow({});
        QQuickView &window = *mainWindow();
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, &QWindow::hide,
                         static_cast<Qt::ConnectionType>(moment | Qt::SingleShotConnection));
        ASSERT_TRUE(becomesTrue([&] { return !window.isVisible(); }));
        // As long as the first frame of another window takes, at least.
        userInterface().showOverlay();
        ASSERT_TRUE(becomesTrue([] { return overlay()->isExposed(); }));
        EXPECT_EQ(nullptr, find(window, "ContentView"));
        userInterface().showMainWindow({});
        EXPECT_NE(nullptr, findSoon(window, "ContentView"));
    }
}

TEST_F(MainWindowTest, NobodyAnswersAQuestionBeforeItShows)
{
    userInterface().askForTrust();
    ASSERT_EQ(nullptr, find(*mainWindow(), "ContentView"));
    QTest::keyPress(mainWindow(), Qt::Key_Return);
    EXPECT_NE(nullptr, find(*mainWindow(), "TrustPrompt"));
    EXPECT_EQ(0, trustGrants());
}

TEST_F(MainWindowTest, TheMainWindowHasTheKeyboardWhereItBegins)
{
    userInterface().showMainWindow({});
    EXPECT_TRUE(becomesTrue([] {
        const QQuickItem *focused = mainWindow()->activeFocusItem();
        return focused != nullptr && focused->property("title") == u"All Shortcuts"_s;
    }));
}

TEST_F(MainWindowTest, AClosedMainWindowComesBackAsItWas)
{
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    window->hide();
    userInterface().showMainWindow({});
    EXPECT_EQ(window, mainWindow());
}

TEST_F(MainWindowTest, AMainWindowThatStaysClosedIsMadeAnewInItsPlace)
{
    keepNoClosedWindow();
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    ASSERT_TRUE(becomesTrue([&] { return window->isExposed(); }));
    const QRect place(60, 80, window->width() + 40, window->height() + 20);
    window->setGeometry(place);
    ASSERT_TRUE(becomesTrue([&] { return window->geometry() == place; }));
    const QRect frame = window->frameGeometry();
    model().setSearch(u"paste"_s);
    window->hide();
    EXPECT_TRUE(becomesTrue([&] { return window.isNull(); }));
    userInterface().showMainWindow({});
    ASSERT_NE(nullptr, mainWindow());
    EXPECT_TRUE(becomesTrue([&] { return mainWindow()->frameGeometry() == frame; }));
    EXPECT_EQ(u"paste"_s, model().search());
}

TEST_F(MainWindowTest, AMainWindowThatIsMadeAnewShowsWhatTheOneBeforeShowed)
{
    keepNoClosedWindow();
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    ASSERT_TRUE(becomesTrue([&] { return window->isExposed(); }));
    QObject *cards = findSoon(*window, "ShortcutGrid");
    ASSERT_NE(nullptr, cards);
    cards->setProperty("currentIndex", 17);
    cards->setProperty("contentY", 480);
    window->hide();
    ASSERT_TRUE(becomesTrue([&] { return window.isNull(); }));

    userInterface().showMainWindow({});
    const QObject *newCards = findSoon(*mainWindow(), "ShortcutGrid");
    ASSERT_NE(nullptr, newCards);
    EXPECT_TRUE(becomesTrue([&] { return newCards->property("contentY").toReal() == 480; }));
    EXPECT_EQ(17, newCards->property("currentIndex").toInt());
}

TEST_F(MainWindowTest, AScreenOfAMainWindowThatIsMadeAnewIsWhereItWasScrolledTo)
{
    keepNoClosedWindow();
    model().setSelection({.kind = SidebarSelection::Kind::firstAid});
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    ASSERT_TRUE(becomesTrue([&] { return window->isExposed(); }));
    QObject *screen = findSoon(*window, "FirstAidView");
    ASSERT_NE(nullptr, screen);
    bool hasScrolled = false;
    QMetaObject::invokeMethod(screen, "scrollTo", Q_RETURN_ARG(bool, hasScrolled), Q_ARG(double, 150));
    ASSERT_TRUE(hasScrolled);
    window->hide();
    ASSERT_TRUE(becomesTrue([&] { return window.isNull(); }));

    userInterface().showMainWindow({});
    screen = findSoon(*mainWindow(), "FirstAidView");
    ASSERT_NE(nullptr, screen);
    EXPECT_TRUE(becomesTrue([&] { return screen->property("contentY").toReal() == 150; }));
}

TEST_F(MainWindowTest, AMainWindowThatIsMadeAnewShowsWhatItIsOpenedFor)
{
    keepNoClosedWindow();
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    QObject *cards = findSoon(*window, "ShortcutGrid");
    ASSERT_NE(nullptr, cards);
    cards->setProperty("contentY", 480);
    window->hide();
    ASSERT_TRUE(becomesTrue([&] { return window.isNull(); }));

    suggest(u"Copy"_s);
    QTest::mouseClick(notice(), Qt::LeftButton, {}, QPoint(20, 20));
    ASSERT_TRUE(becomesTrue([&] { return mainWindow()->isExposed(); }));
    EXPECT_LT(find(*mainWindow(), "ShortcutGrid")->property("contentY").toReal(), 100);
}

TEST_F(MainWindowTest, AMainWindowThatIsShownAgainInTimeStays)
{
    keepNoClosedWindow();
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    window->hide();
    userInterface().showMainWindow({});
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(window, mainWindow());
}

TEST_F(MainWindowTest, AClosedMainWindowWithAnOpenSheetStays)
{
    keepNoClosedWindow();
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    userInterface().askForTrust();
    ASSERT_NE(nullptr, findSoon(*window, "TrustPrompt"));
    window->hide();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isNull());
}

TEST_F(MainWindowTest, AClosedMainWindowGoesOnceWhatKeptItIsOver)
{
    keepNoClosedWindow();
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    userInterface().askForTrust();
    QObject *prompt = findSoon(*window, "TrustPrompt");
    ASSERT_NE(nullptr, prompt);
    window->hide();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    ASSERT_FALSE(window.isNull());
    ASSERT_TRUE(QMetaObject::invokeMethod(prompt, "close"));
    EXPECT_TRUE(becomesTrue([&] { return window.isNull(); }));
}

TEST_F(MainWindowTest, TheQuestionOfTrustIsAskedInTheMainWindow)
{
    userInterface().askForTrust();
    ASSERT_NE(mainWindow(), nullptr);
    EXPECT_TRUE(becomesTrue([] {
        const QQuickItem *focused = mainWindow()->activeFocusItem();
        return focused != nullptr && focused->property("label") == u"Allow"_s;
    }));
    QSignalSpy frames(mainWindow(), &QQuickWindow::frameSwapped);
    mainWindow()->requestUpdate();
    ASSERT_TRUE(becomesTrue([&] { return !frames.isEmpty(); }));
    EXPECT_EQ(trustGrants(), 0);
    QTest::keyClick(mainWindow(), Qt::Key_Return);
    EXPECT_EQ(trustGrants(), 1);
}

} // namespace keyvora
