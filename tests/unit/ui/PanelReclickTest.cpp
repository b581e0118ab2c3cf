// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PanelReclick.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace std::chrono_literals;

namespace {

constexpr QPoint icon(1200, 14);

/// A panel that was closed by losing the focus with the pointer on the icon, under a clock of its own.
struct ClosedPanel
{
    std::chrono::steady_clock::time_point now;
    PanelReclick reclick{[this] {
        return now;
    }};

    ClosedPanel() { reclick.panelLostFocus(icon); }
};

} // namespace

TEST(PanelReclick, AFirstClickTakesNothing)
{
    PanelReclick reclick([] { return std::chrono::steady_clock::time_point(); });
    EXPECT_FALSE(reclick.takesLostFocus(icon));
}

TEST(PanelReclick, AClickTakesTheFocusThatWasLostAMomentAgo)
{
    ClosedPanel atOnce;
    EXPECT_TRUE(atOnce.reclick.takesLostFocus(icon));
    ClosedPanel later;
    later.now += 500ms;
    EXPECT_TRUE(later.reclick.takesLostFocus(icon));
}

TEST(PanelReclick, AClickLaterTakesNothing)
{
    ClosedPanel panel;
    panel.now += 501ms;
    EXPECT_FALSE(panel.reclick.takesLostFocus(icon));
}

TEST(PanelReclick, TheNextClickTakesNothing)
{
    ClosedPanel panel;
    EXPECT_TRUE(panel.reclick.takesLostFocus(icon));
    EXPECT_FALSE(panel.reclick.takesLostFocus(icon));
}

TEST(PanelReclick, AHandIsNotQuiteStill)
{
    ClosedPanel panel;
    EXPECT_TRUE(panel.reclick.takesLostFocus(icon + QPoint(-12, 12)));
}

TEST(PanelReclick, AClickTakesNothingWhereTheFocusWentToAWindowElsewhere)
{
    ClosedPanel panel;
    EXPECT_FALSE(panel.reclick.takesLostFocus(icon + QPoint(-13, 12)));
    EXPECT_FALSE(panel.reclick.takesLostFocus(icon));
}

TEST(PanelReclick, TheLastLossCounts)
{
    ClosedPanel panel;
    panel.now += 10s;
    panel.reclick.panelLostFocus(icon);
    EXPECT_TRUE(panel.reclick.takesLostFocus(icon));
}

} // namespace keyvora
