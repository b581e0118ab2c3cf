// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/QmlUserInterface.h"

#include "contract/Waiting.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeAppearance.h"
#include "fakes/FakeCompositor.h"
#include "fakes/FakeKeyboardLayout.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeUrlLoader.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "system/AppMenu.h"
#include "unit/QtPrinters.h"
#include "update/UpdateChecker.h"

#include <QGuiApplication>
#include <QPointer>
#include <QProcessEnvironment>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int overlayWidth = 380;
constexpr int noticeWidth = 340;
constexpr int margin = 22;

class QmlUserInterfaceTest : public testing::Test
{
protected:
    QmlUserInterfaceTest() { m_model.setLearningMode(true); }

    QmlUserInterface &userInterface() { return *m_userInterface; }
    /// Closed main windows go at once from here on.
    void keepNoClosedWindow()
    {
        m_userInterface = std::make_unique<QmlUserInterface>(context(), std::chrono::milliseconds(0));
    }
    AppModel &model() { return m_model; }
    FakeCompositor &compositor() { return m_compositor; }
    [[nodiscard]] int trustGrants() const { return m_trustGrants; }

    void activate(const QString &application) { m_workspace.activate({.name = application, .pid = 1}); }

    /// A shortcut of one application.
    void addFor(const QString &application, const QString &title)
    {
        m_model.addCustom(title, {u"⌃"_s, u"R"_s}, Shortcut::Category::zaklady, application, {});
    }

    /// A menu command is chosen with the mouse.
    void suggest(const QString &title)
    {
        m_model.recordMouseAction(title);
        m_userInterface->showSuggestion();
    }

    /// The windows that are shown and this wide.
    static QList<QQuickView *> visible(int width)
    {
        QList<QQuickView *> views;
        for (QWindow *window : QGuiApplication::allWindows()) {
            auto *view = qobject_cast<QQuickView *>(window);
            if (view != nullptr && view->isVisible() && view->width() == width)
                views.append(view);
        }
        return views;
    }

    static QQuickView *overlay() { return visible(overlayWidth).value(0); }
    static QQuickView *notice() { return visible(noticeWidth).value(0); }
    static QQuickView *mainWindow()
    {
        const QWindowList windows = QGuiApplication::allWindows();
        const auto found = std::ranges::find_if(windows, [](const QWindow *window) {
            return window->isVisible() && window->width() > overlayWidth;
        });
        return found == windows.end() ? nullptr : qobject_cast<QQuickView *>(*found);
    }

    /// What a window shows of a QML type; null where it shows none.
    static QObject *find(const QQuickView &window, const char *type)
    {
        const QObjectList content = window.rootObject()->findChildren<QObject *>();
        const auto found = std::ranges::find_if(content, [type](const QObject *child) {
            return QByteArray(child->metaObject()->className()).startsWith(type);
        });
        return found == content.end() ? nullptr : *found;
    }

    /// The same, which the window may be about to show.
    static QObject *findSoon(const QQuickView &window, const char *type)
    {
        static_cast<void>(becomesTrue([&] { return find(window, type) != nullptr; }));
        return find(window, type);
    }

    /// Where the corner of the main screen is.
    static QPoint corner()
    {
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        return {available.left() + available.width() - margin, available.top() + margin};
    }

private:
    [[nodiscard]] UserInterface::Context context()
    {
        return {
            .model = m_model,
            .menu = m_menu,
            .accessibility = m_accessibility,
            .appearance = m_appearance,
            .compositor = m_compositor,
            .keyboardLayout = m_keyboardLayout,
            .updates = m_updates,
            .defaults = m_defaults,
            .windowFrames = m_frames,
            .environment = m_environment,
            .showMainWindow = [this] { m_userInterface->showMainWindow({}); },
            .quit = [] {},
            .toggleOverlay =
                [this] {
                    if (m_userInterface->isOverlayVisible())
                        m_userInterface->hideOverlay();
                    else
                        m_userInterface->showOverlay();
                },
            .grantTrust = [this] { ++m_trustGrants; },
            .activateWindow = [](const QWindow &, const QString &) { return false; },
        };
    }

    Defaults &withoutGreeting()
    {
        m_defaults.setBoolean("hasSeenOnboarding"_L1, true);
        return m_defaults;
    }

    QTemporaryDir m_folder;
    Defaults m_defaults{m_folder.filePath(u"defaults.json"_s)};
    Defaults m_frames{m_folder.filePath(u"windows.json"_s)};
    Localization m_localization{withoutGreeting(), {u"en-US"_s}};
    FakeWorkspace m_workspace;
    FakeLoginItem m_loginItem;
    FakeAccessibility m_accessibility;
    FakeAppearance m_appearance;
    FakeCompositor m_compositor;
    FakeKeyboardLayout m_keyboardLayout;
    QProcessEnvironment m_environment;
    AppModel m_model{AppModel::Dependencies{
        .defaults = m_defaults,
        .workspace = m_workspace,
        .loginItem = m_loginItem,
        .accessibility = m_accessibility,
        .makeSmartObserver = {},
        .locale = QLocale(QLocale::English),
    }};
    AppMenu m_menu;
    FakeUrlLoader m_urlLoader;
    UpdateChecker m_updates{m_defaults, m_urlLoader, {}, [](const QUrl &) {
                            }};
    int m_trustGrants = 0;
    std::unique_ptr<QmlUserInterface> m_userInterface = std::make_unique<QmlUserInterface>(context());
};

} // namespace

TEST_F(QmlUserInterfaceTest, APreparedMainWindowIsShownWhenItShouldBe)
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

TEST_F(QmlUserInterfaceTest, APreparedMainWindowMayNeverBeShown)
{
    userInterface().prepareMainWindow();
    userInterface().showOverlay();
    EXPECT_NE(nullptr, overlay());
    EXPECT_EQ(nullptr, mainWindow());
    keepNoClosedWindow();
    userInterface().prepareMainWindow();
}

TEST_F(QmlUserInterfaceTest, TheMainWindowComesUpBeforeWhatItShows)
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

TEST_F(QmlUserInterfaceTest, WhatTheMainWindowShowsIsThereForTheFirstKey)
{
    userInterface().showMainWindow({});
    ASSERT_EQ(nullptr, find(*mainWindow(), "ContentView"));
    QTest::keyClick(mainWindow(), Qt::Key_End);
    EXPECT_NE(nullptr, find(*mainWindow(), "ContentView"));
}

TEST_F(QmlUserInterfaceTest, WhatTheMainWindowShowsIsThereForTheFirstClick)
{
    userInterface().showMainWindow({});
    ASSERT_EQ(nullptr, find(*mainWindow(), "ContentView"));
    QTest::mousePress(mainWindow(), Qt::LeftButton, {}, QPoint(100, 600));
    EXPECT_NE(nullptr, find(*mainWindow(), "ContentView"));
}

TEST_F(QmlUserInterfaceTest, TheMainWindowHasTheKeyboardWhereItBegins)
{
    userInterface().showMainWindow({});
    EXPECT_TRUE(becomesTrue([] {
        const QQuickItem *focused = mainWindow()->activeFocusItem();
        return focused != nullptr && focused->property("title") == u"All Shortcuts"_s;
    }));
}

TEST_F(QmlUserInterfaceTest, AClosedMainWindowComesBackAsItWas)
{
    userInterface().showMainWindow({});
    const QPointer<QQuickView> window = mainWindow();
    window->hide();
    userInterface().showMainWindow({});
    EXPECT_EQ(window, mainWindow());
}

TEST_F(QmlUserInterfaceTest, AMainWindowThatStaysClosedIsMadeAnewInItsPlace)
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

TEST_F(QmlUserInterfaceTest, AMainWindowThatIsMadeAnewShowsWhatTheOneBeforeShowed)
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

TEST_F(QmlUserInterfaceTest, AScreenOfAMainWindowThatIsMadeAnewIsWhereItWasScrolledTo)
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

TEST_F(QmlUserInterfaceTest, AMainWindowThatIsMadeAnewShowsWhatItIsOpenedFor)
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

TEST_F(QmlUserInterfaceTest, AMainWindowThatIsShownAgainInTimeStays)
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

TEST_F(QmlUserInterfaceTest, AClosedMainWindowWithAnOpenSheetStays)
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

TEST_F(QmlUserInterfaceTest, AClosedMainWindowGoesOnceWhatKeptItIsOver)
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

TEST_F(QmlUserInterfaceTest, OverlayComesAndGoes)
{
    EXPECT_FALSE(userInterface().isOverlayVisible());
    userInterface().hideOverlay();
    userInterface().showOverlay();
    EXPECT_TRUE(userInterface().isOverlayVisible());
    const QQuickView *first = overlay();
    userInterface().hideOverlay();
    EXPECT_FALSE(userInterface().isOverlayVisible());
    EXPECT_EQ(overlay(), nullptr);
    userInterface().showOverlay();
    EXPECT_EQ(overlay(), first);
}

TEST_F(QmlUserInterfaceTest, OverlayStandsInTheTopRightCorner)
{
    userInterface().showOverlay();
    EXPECT_EQ(overlay()->position(), corner() - QPoint(overlayWidth, 0));
}

TEST_F(QmlUserInterfaceTest, OverlayIsAWindowThatTakesNoFocus)
{
    userInterface().showOverlay();
    EXPECT_EQ(overlay()->flags() & Qt::WindowType_Mask, Qt::ToolTip);
    for (const Qt::WindowType flag :
         {Qt::FramelessWindowHint, Qt::WindowStaysOnTopHint, Qt::WindowDoesNotAcceptFocus})
        EXPECT_TRUE(overlay()->flags().testFlag(flag)) << flag;
    EXPECT_EQ(overlay()->color(), QColor(Qt::transparent));
}

TEST_F(QmlUserInterfaceTest, TheFocusStaysWhereItIs)
{
    userInterface().showMainWindow({});
    ASSERT_TRUE(becomesTrue([] { return mainWindow()->isActive(); }));
    userInterface().showOverlay();
    suggest(u"Redo"_s);
    EXPECT_TRUE(becomesTrue([] { return overlay()->isExposed() && notice()->isExposed(); }));
    QTest::mouseClick(overlay(), Qt::LeftButton, {}, QPoint(20, 100));
    EXPECT_EQ(QGuiApplication::focusWindow(), mainWindow());
}

TEST_F(QmlUserInterfaceTest, OverlayGrowsAndShrinksInItsCorner)
{
    addFor(u"Mousepad"_s, u"Wrap Lines"_s);
    userInterface().showOverlay();
    const int before = overlay()->height();
    activate(u"Mousepad"_s);
    EXPECT_TRUE(becomesTrue([&] { return overlay()->height() < before; }));
    EXPECT_EQ(overlay()->position(), corner() - QPoint(overlayWidth, 0));
}

TEST_F(QmlUserInterfaceTest, OverlayHasTheHeightOfItsContentWhenItComes)
{
    addFor(u"Mousepad"_s, u"Wrap Lines"_s);
    userInterface().showOverlay();
    const int before = overlay()->height();
    userInterface().hideOverlay();
    activate(u"Mousepad"_s);
    userInterface().showOverlay();
    EXPECT_LT(overlay()->height(), before);
    EXPECT_EQ(overlay()->height(), overlay()->rootObject()->height());
}

TEST_F(QmlUserInterfaceTest, CornersAreRoundWhileWindowsAreBlended)
{
    userInterface().showOverlay();
    const auto isRounded = [] {
        return overlay()->rootObject()->property("isRounded").toBool();
    };
    EXPECT_FALSE(isRounded());
    compositor().setRunning(true);
    EXPECT_TRUE(isRounded());
    compositor().setRunning(false);
    EXPECT_FALSE(isRounded());
}

TEST_F(QmlUserInterfaceTest, WithoutASuggestionThereIsNoNotice)
{
    userInterface().showSuggestion();
    EXPECT_EQ(notice(), nullptr);
}

TEST_F(QmlUserInterfaceTest, NoticeStandsInTheCornerOrBelowTheOverlay)
{
    constexpr int gap = 12;
    suggest(u"Redo"_s);
    ASSERT_NE(notice(), nullptr);
    EXPECT_EQ(notice()->position(), corner() - QPoint(noticeWidth, 0));
    userInterface().showOverlay();
    EXPECT_EQ(notice()->position(), corner() + QPoint(-noticeWidth, overlay()->height() + gap));
    addFor(u"Mousepad"_s, u"Wrap Lines"_s);
    const int before = overlay()->height();
    activate(u"Mousepad"_s);
    EXPECT_TRUE(becomesTrue([&] { return overlay()->height() < before; }));
    EXPECT_EQ(notice()->position(), corner() + QPoint(-noticeWidth, overlay()->height() + gap));
    userInterface().hideOverlay();
    EXPECT_EQ(notice()->position(), corner() - QPoint(noticeWidth, 0));
}

TEST_F(QmlUserInterfaceTest, ThereIsOneNoticeAtATime)
{
    suggest(u"Redo"_s);
    const QQuickView *first = notice();
    suggest(u"Undo"_s);
    EXPECT_EQ(visible(noticeWidth).size(), 1);
    EXPECT_EQ(notice(), first);
}

TEST_F(QmlUserInterfaceTest, NoticeGoesByItselfAndComesAgain)
{
    suggest(u"Redo"_s);
    notice()->rootObject()->setProperty("duration", 1);
    EXPECT_TRUE(becomesTrue([] { return notice() == nullptr; }));
    suggest(u"Redo"_s);
    EXPECT_NE(notice(), nullptr);
    EXPECT_TRUE(becomesTrue([] { return notice() == nullptr; }));
    EXPECT_EQ(mainWindow(), nullptr);
}

TEST_F(QmlUserInterfaceTest, AClickOnTheNoticeOpensTheMainWindowAtTheShortcut)
{
    suggest(u"Redo"_s);
    const QSignalSpy revelations(&model(), &AppModel::shortcutRevealed);
    QTest::mouseClick(notice(), Qt::LeftButton, {}, QPoint(20, 20));
    EXPECT_EQ(notice(), nullptr);
    ASSERT_NE(mainWindow(), nullptr);
    EXPECT_EQ(revelations.size(), 1);
    EXPECT_TRUE(becomesTrue([] {
        const QQuickItem *focused = mainWindow()->activeFocusItem();
        return focused != nullptr && focused->property("title") == u"Redo"_s;
    }));
}

TEST_F(QmlUserInterfaceTest, TheQuestionOfTrustIsAskedInTheMainWindow)
{
    userInterface().askForTrust();
    ASSERT_NE(mainWindow(), nullptr);
    EXPECT_TRUE(becomesTrue([] {
        const QQuickItem *focused = mainWindow()->activeFocusItem();
        return focused != nullptr && focused->property("label") == u"Allow"_s;
    }));
    EXPECT_EQ(trustGrants(), 0);
    QTest::keyClick(mainWindow(), Qt::Key_Return);
    EXPECT_EQ(trustGrants(), 1);
}

} // namespace keyvora
