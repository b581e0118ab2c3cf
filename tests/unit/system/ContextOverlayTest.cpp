// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/ContextOverlay.h"

#include "unit/QtPrinters.h"
#include "unit/system/UserInterfaceGround.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

struct Screen : UserInterfaceGround
{
    UserInterfaceLoader userInterface = loader(QStringLiteral(KEYVORA_STAND_IN_USER_INTERFACE));
    ContextOverlay overlay{userInterface};
    QSignalSpy hidden{&overlay, &ContextOverlay::hidden};
};

} // namespace

TEST(ContextOverlay, LoadsTheUserInterfaceWhenItIsShown)
{
    Screen screen;
    EXPECT_FALSE(screen.overlay.isVisible());
    EXPECT_EQ(screen.contexts(), 0);
    screen.overlay.show();
    EXPECT_EQ(screen.contexts(), 1);
    EXPECT_TRUE(screen.overlay.isVisible());
    EXPECT_TRUE(screen.userInterface.loaded()->isOverlayVisible());
    EXPECT_TRUE(screen.hidden.isEmpty());
}

TEST(ContextOverlay, LoadsNothingInOrderToHide)
{
    Screen screen;
    screen.overlay.hide();
    EXPECT_EQ(screen.contexts(), 0);
    EXPECT_TRUE(screen.hidden.isEmpty());
}

TEST(ContextOverlay, TellsThatItHides)
{
    Screen screen;
    screen.overlay.show();
    bool isVisibleWhenTold = true;
    QObject::connect(&screen.overlay, &ContextOverlay::hidden, &screen.overlay,
                     [&] { isVisibleWhenTold = screen.overlay.isVisible(); });
    screen.overlay.hide();
    EXPECT_FALSE(screen.userInterface.loaded()->isOverlayVisible());
    EXPECT_EQ(screen.hidden.size(), 1);
    EXPECT_FALSE(isVisibleWhenTold);
    screen.overlay.hide();
    EXPECT_EQ(screen.hidden.size(), 1);
}

TEST(ContextOverlay, ShowsAndHidesInTurn)
{
    Screen screen;
    screen.overlay.toggle();
    EXPECT_TRUE(screen.overlay.isVisible());
    screen.overlay.toggle();
    EXPECT_FALSE(screen.overlay.isVisible());
    EXPECT_EQ(screen.hidden.size(), 1);
    screen.overlay.toggle();
    EXPECT_TRUE(screen.overlay.isVisible());
}

TEST(ContextOverlay, StaysAwayWithoutTheUserInterface)
{
    const QTemporaryDir folder;
    UserInterfaceGround ground;
    UserInterfaceLoader userInterface = ground.loader(folder.filePath(u"missing.so"_s));
    ContextOverlay overlay(userInterface);
    QSignalSpy hidden(&overlay, &ContextOverlay::hidden);
    const TakenMessages taken;
    overlay.show();
    overlay.toggle();
    overlay.hide();
    EXPECT_FALSE(overlay.isVisible());
    EXPECT_TRUE(hidden.isEmpty());
    EXPECT_EQ(taken.messages().size(), 2);
}

} // namespace keyvora
