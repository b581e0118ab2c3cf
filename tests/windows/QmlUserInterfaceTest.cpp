// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "windows/UserInterfaceFixture.h"

#include <QSignalSpy>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

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

} // namespace keyvora
