// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelPlacement.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

constexpr QSize panel(330, 320);
constexpr QRect screen(0, 0, 1280, 800);

struct Place
{
    const char *name;
    QPoint icon;
    ScreenArea screen;
    QPoint position;
};

const QRect rightScreen(1280, 0, 1920, 1080);
const QRect leftScreen(-1920, -200, 1920, 1080);

const Place places[] = {
    {"top", {640, 14}, {screen, {0, 28, 1280, 772}}, {475, 36}},
    {"top, at the left end", {10, 14}, {screen, {0, 28, 1280, 772}}, {8, 36}},
    {"top, at the right end", {1270, 14}, {screen, {0, 28, 1280, 772}}, {942, 36}},
    {"bottom", {640, 780}, {screen, {0, 0, 1280, 760}}, {475, 432}},
    {"bottom, at the right end", {1270, 780}, {screen, {0, 0, 1280, 760}}, {942, 432}},
    {"left", {24, 400}, {screen, {48, 0, 1232, 800}}, {56, 240}},
    {"left, at the upper end", {24, 10}, {screen, {48, 0, 1232, 800}}, {56, 8}},
    {"left, at the lower end", {24, 790}, {screen, {48, 0, 1232, 800}}, {56, 472}},
    {"right", {1256, 400}, {screen, {0, 0, 1232, 800}}, {894, 240}},
    {"right, at the lower end", {1256, 790}, {screen, {0, 0, 1232, 800}}, {894, 472}},
    {"a bar far from the edge that is nearest", {1250, 100}, {screen, {0, 120, 1280, 680}}, {942, 128}},
    {"where two bars meet", {1250, 14}, {screen, {0, 28, 1216, 772}}, {878, 36}},
    {"a bar at the other side", {640, 780}, {screen, {0, 28, 1280, 732}}, {475, 432}},
    {"no space reserved, top", {640, 12}, {screen, screen}, {475, 32}},
    {"no space reserved, bottom", {640, 787}, {screen, screen}, {475, 448}},
    {"no space reserved, left", {15, 400}, {screen, screen}, {38, 240}},
    {"no space reserved, right", {1264, 400}, {screen, screen}, {912, 240}},
    {"no space reserved, in a corner", {13, 15}, {screen, screen}, {8, 38}},
    {"no space reserved, in the corner across", {1268, 788}, {screen, screen}, {942, 450}},
    {"no space reserved, near a corner", {15, 30}, {screen, screen}, {38, 8}},
    {"no space reserved, far from each edge", {640, 700}, {screen, screen}, {475, 349}},
    {"right screen, bottom", {3100, 1060}, {rightScreen, {1280, 0, 1920, 1040}}, {2862, 712}},
    {"right screen, at the border of the other",
     {1290, 14},
     {rightScreen, {1280, 28, 1920, 1052}},
     {1288, 36}},
    {"left screen, left", {-1896, 100}, {leftScreen, {-1872, -200, 1872, 1080}}, {-1864, -60}},
    {"left screen, top", {-900, -190}, {leftScreen, {-1920, -176, 1920, 1056}}, {-1065, -168}},
    {"a screen that is too small", {300, 14}, {{0, 0, 320, 200}, {0, 28, 320, 172}}, {8, 36}},
};

struct Anchor
{
    const char *name;
    QPoint click;
    QPoint pointer;
    QPoint point;
    QRect screen;
};

const QList<ScreenArea> screens{
    {screen, {0, 28, 1280, 772}},
    {rightScreen, {1280, 0, 1920, 1040}},
    {leftScreen, leftScreen},
};

const Anchor anchors[] = {
    {"the click, whatever the pointer does", {640, 14}, {-900, 0}, {640, 14}, screen},
    {"a click on the right screen", {3100, 1060}, {640, 14}, {3100, 1060}, rightScreen},
    {"a click on the left screen", {-900, -190}, {640, 14}, {-900, -190}, leftScreen},
    {"no click: the pointer", {0, 0}, {3100, 1060}, {3100, 1060}, rightScreen},
    {"a click on no screen: the pointer", {5000, 14}, {-900, -190}, {-900, -190}, leftScreen},
    {"no click, and the pointer in the first corner", {0, 0}, {0, 0}, {0, 0}, screen},
    {"no click, and the pointer on no screen", {0, 0}, {100, 900}, {1279, 28}, screen},
    {"neither on any screen", {-5, 900}, {5000, 5000}, {1279, 28}, screen},
};

} // namespace

TEST(PanelPosition, IsOnTheInnerSideOfTheEdgeThatTheIconIsAt)
{
    for (const Place &place : places) {
        SCOPED_TRACE(place.name);
        EXPECT_EQ(panelPosition(panel, {place.icon, place.screen}), place.position);
    }
}

TEST(PanelPosition, KeepsToItsEdgeWhateverTheHeight)
{
    const PanelAnchor atTheBottom{{640, 780}, {screen, {0, 0, 1280, 760}}};
    EXPECT_EQ(panelPosition({330, 160}, atTheBottom), QPoint(475, 592));
    const PanelAnchor atTheTop{{640, 14}, {screen, {0, 28, 1280, 772}}};
    EXPECT_EQ(panelPosition({330, 160}, atTheTop), QPoint(475, 36));
}

TEST(PanelPosition, IsTheTopRightCornerForAPanelWithoutAnIcon)
{
    for (const QRect &available : {screen, QRect(0, 28, 1280, 772), QRect(48, 0, 1132, 760)}) {
        const PanelAnchor anchor = panelAnchor({}, {-1, -1}, {{screen, available}});
        const QPoint corner = available.topRight() + QPoint(1 - 8 - panel.width(), 8);
        EXPECT_EQ(panelPosition(panel, anchor), corner);
    }
}

TEST(PanelAnchor, IsWhereTheClickWas)
{
    for (const Anchor &anchor : anchors) {
        SCOPED_TRACE(anchor.name);
        const PanelAnchor found = panelAnchor(anchor.click, anchor.pointer, screens);
        EXPECT_EQ(found.point, anchor.point);
        EXPECT_TRUE(found.screen.geometry == anchor.screen);
    }
}

TEST(CornerOffset, IsNothingBesideAnotherWindow)
{
    constexpr QSize overlay(380, 290);
    EXPECT_EQ(cornerOffsetBelow(overlay, {475, 36, 330, 320}, screen), 0);
    EXPECT_EQ(cornerOffsetBelow(overlay, {942, 432, 330, 320}, screen), 0);
}

TEST(CornerOffset, LeadsBelowAWindowInTheSameCorner)
{
    constexpr QSize overlay(380, 290);
    const QRect other(942, 36, 330, 320);
    EXPECT_EQ(cornerOffsetBelow(overlay, other, screen), 36 + 320 + 12 - 22);
    EXPECT_EQ(cornerOffsetBelow(overlay, other.translated(0, 28), {0, 28, 1280, 772}), 36 + 320 + 12 - 22);
}

TEST(CornerOffset, IsNothingWhereThereIsNoRoomBelow)
{
    EXPECT_EQ(cornerOffsetBelow({380, 290}, {942, 36, 330, 320}, {0, 0, 1280, 600}), 0);
}

} // namespace keyvora
