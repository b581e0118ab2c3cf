// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/HoldToShowObserver.h"

#include "contract/Waiting.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeInputMonitor.h"
#include "unit/Settle.h"

#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace std::chrono_literals;

namespace {

constexpr KeyModifiers none;
constexpr KeyModifiers combination = KeyModifier::Control | KeyModifier::Option;

/// A desktop whose time passes when the test says so, and an overlay that is there or not.
class Desktop
{
public:
    /// Watches already, unless the test wants to start it.
    explicit Desktop(bool starts = true)
    {
        if (!starts)
            return;
        observer->start();
        EXPECT_TRUE(becomesTrue([this] { return input.watchesModifiers(); }));
    }

    void hold(KeyModifiers modifiers) { input.changeModifiers(modifiers); }

    /// Lets the time pass that the oldest hold waits for.
    void elapseOldest()
    {
        ASSERT_FALSE(delays.isEmpty());
        delays.takeFirst().function();
        settle();
    }

    void elapseAll()
    {
        while (!delays.isEmpty())
            elapseOldest();
    }

    struct Waiting
    {
        std::chrono::milliseconds time;
        std::function<void()> function;
    };

    FakeInputMonitor input;
    FakeAccessibility accessibility;
    QList<Waiting> delays;
    bool isVisible = false;
    int shows = 0;
    int hides = 0;
    std::unique_ptr<HoldToShowObserver> observer = std::make_unique<HoldToShowObserver>(
        input, accessibility,
        HoldToShowObserver::Overlay{.show =
                                        [this] {
                                            isVisible = true;
                                            ++shows;
                                        },
                                    .hide =
                                        [this] {
                                            isVisible = false;
                                            ++hides;
                                        },
                                    .isVisible =
                                        [this] {
                                            return isVisible;
                                        }},
        [this](std::chrono::milliseconds time, std::function<void()> function) {
            delays.append({time, std::move(function)});
        });
};

} // namespace

TEST(HoldToShowStart, WatchesNothingByItself)
{
    Desktop desktop(false);
    settle();
    EXPECT_FALSE(desktop.input.watchesModifiers());
    EXPECT_EQ(desktop.accessibility.trustChecks(), 0);
}

TEST(HoldToShowStart, HappensOnce)
{
    Desktop desktop(false);
    desktop.observer->start();
    desktop.observer->start();
    settle();
    desktop.observer->start();
    settle();
    EXPECT_TRUE(desktop.input.watchesModifiers());
    EXPECT_EQ(desktop.accessibility.trustChecks(), 1);
    desktop.hold(combination);
    EXPECT_EQ(desktop.delays.size(), 1);
}

TEST(HoldToShowStart, NeedsTrust)
{
    Desktop desktop(false);
    desktop.accessibility.setTrusted(false);
    desktop.observer->start();
    settle();
    EXPECT_FALSE(desktop.input.watchesModifiers());
    desktop.accessibility.setTrusted(true);
    settle();
    EXPECT_FALSE(desktop.input.watchesModifiers());
    desktop.observer->start();
    settle();
    EXPECT_TRUE(desktop.input.watchesModifiers());
}

TEST(HoldToShowStart, TakesAMissingAnswerAboutTrustForANo)
{
    Desktop desktop(false);
    desktop.accessibility.setGivesAnswers(false);
    desktop.observer->start();
    settle();
    EXPECT_FALSE(desktop.input.watchesModifiers());
}

TEST(HoldToShowStart, EndsWithTheObserver)
{
    Desktop desktop(false);
    desktop.observer->start();
    desktop.observer.reset();
    settle();
    EXPECT_FALSE(desktop.input.watchesModifiers());
}

TEST(HoldToShow, ShowsTheOverlayAfterTheThreshold)
{
    Desktop desktop;
    desktop.hold(KeyModifier::Control);
    EXPECT_TRUE(desktop.delays.isEmpty());
    desktop.hold(combination);
    ASSERT_EQ(desktop.delays.size(), 1);
    EXPECT_EQ(desktop.delays.constFirst().time, 350ms);
    settle();
    EXPECT_FALSE(desktop.isVisible);
    desktop.elapseOldest();
    EXPECT_TRUE(desktop.isVisible);
    EXPECT_EQ(desktop.shows, 1);
    EXPECT_TRUE(desktop.observer->isShowingFromHold());
}

TEST(HoldToShow, HidesTheOverlayWhenAKeyGoesUp)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.elapseOldest();
    desktop.hold(KeyModifier::Control);
    EXPECT_FALSE(desktop.isVisible);
    EXPECT_FALSE(desktop.observer->isShowingFromHold());
    desktop.hold(none);
    EXPECT_EQ(desktop.hides, 1);
}

TEST(HoldToShow, ShowsNothingForAShortHold)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.hold(none);
    desktop.elapseAll();
    EXPECT_EQ(desktop.shows, 0);
    EXPECT_EQ(desktop.hides, 0);
    EXPECT_FALSE(desktop.observer->isShowingFromHold());
}

TEST(HoldToShow, IsForExactlyTheTwoKeys)
{
    Desktop desktop;
    for (const KeyModifier further :
         {KeyModifier::Shift, KeyModifier::CapsLock, KeyModifier::Command, KeyModifier::Other}) {
        desktop.hold(combination | further);
        EXPECT_TRUE(desktop.delays.isEmpty());
    }
    for (const KeyModifiers other :
         {none, KeyModifiers(KeyModifier::Control), KeyModifiers(KeyModifier::Option)}) {
        desktop.hold(other);
        EXPECT_TRUE(desktop.delays.isEmpty());
    }
}

TEST(HoldToShow, EndsWithAFurtherKey)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.elapseOldest();
    desktop.hold(combination | KeyModifier::Shift);
    EXPECT_FALSE(desktop.isVisible);
    EXPECT_FALSE(desktop.observer->isShowingFromHold());
}

TEST(HoldToShow, StartsAfreshWhenAFurtherKeyGoesUp)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.hold(combination | KeyModifier::Shift);
    desktop.hold(combination);
    ASSERT_EQ(desktop.delays.size(), 2);
    desktop.elapseOldest();
    EXPECT_FALSE(desktop.isVisible);
    desktop.elapseOldest();
    EXPECT_TRUE(desktop.isVisible);
}

TEST(HoldToShow, CountsOnlyTheLastOfSeveralHolds)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.hold(none);
    desktop.hold(combination);
    ASSERT_EQ(desktop.delays.size(), 2);
    desktop.elapseOldest();
    EXPECT_EQ(desktop.shows, 0);
    desktop.elapseOldest();
    EXPECT_EQ(desktop.shows, 1);
}

TEST(HoldToShow, CountsFromTheLatestTimeThatTheSameIsTold)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.hold(combination);
    desktop.elapseOldest();
    EXPECT_EQ(desktop.shows, 0);
    desktop.elapseOldest();
    EXPECT_EQ(desktop.shows, 1);
}

TEST(HoldToShow, ShowsNothingWhenTheKeysAreUpThoughNobodySaidSo)
{
    Desktop desktop;
    for (const KeyModifiers current : {none, combination | KeyModifier::Shift}) {
        desktop.hold(combination);
        desktop.input.setCurrentModifiers(current);
        desktop.elapseOldest();
        EXPECT_EQ(desktop.shows, 0);
        EXPECT_FALSE(desktop.observer->isShowingFromHold());
    }
}

TEST(HoldToShow, ShowsNothingWhenTheKeysGoUpWhileTheirStateIsAsked)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.delays.takeFirst().function();
    // The answer is on its way and says that they are down.
    desktop.hold(none);
    settle();
    EXPECT_EQ(desktop.shows, 0);
    EXPECT_FALSE(desktop.observer->isShowingFromHold());
}

TEST(HoldToShow, ShowsNothingForAHoldThatAnotherFollowsWhileTheStateIsAsked)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.delays.takeFirst().function();
    desktop.hold(none);
    desktop.hold(combination);
    settle();
    EXPECT_EQ(desktop.shows, 0);
    desktop.elapseOldest();
    EXPECT_EQ(desktop.shows, 1);
}

TEST(HoldToShow, LeavesAnOverlayThatAButtonOpened)
{
    Desktop desktop;
    desktop.isVisible = true;
    desktop.hold(combination);
    desktop.hold(none);
    desktop.elapseAll();
    desktop.hold(KeyModifier::Shift);
    desktop.hold(none);
    EXPECT_TRUE(desktop.isVisible);
    EXPECT_EQ(desktop.hides, 0);
}

TEST(HoldToShow, LeavesAnOverlayThatAButtonOpenedAlsoAfterAFullHold)
{
    Desktop desktop;
    desktop.isVisible = true;
    desktop.hold(combination);
    desktop.elapseAll();
    EXPECT_FALSE(desktop.observer->isShowingFromHold());
    desktop.hold(none);
    EXPECT_TRUE(desktop.isVisible);
    EXPECT_EQ(desktop.hides, 0);
}

TEST(HoldToShow, LeavesAnOverlayThatAButtonOpenedAfterAnotherClosedIt)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.elapseOldest();
    desktop.isVisible = false;
    desktop.observer->overlayHidden();
    EXPECT_FALSE(desktop.observer->isShowingFromHold());
    desktop.isVisible = true;
    desktop.hold(none);
    EXPECT_TRUE(desktop.isVisible);
    EXPECT_EQ(desktop.hides, 0);
}

TEST(HoldToShow, ShowsAgainAfterItsOverlayWasClosed)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.elapseOldest();
    desktop.isVisible = false;
    desktop.observer->overlayHidden();
    desktop.hold(none);
    desktop.hold(combination);
    desktop.elapseOldest();
    EXPECT_EQ(desktop.shows, 2);
    EXPECT_TRUE(desktop.observer->isShowingFromHold());
}

TEST(HoldToShow, ShowsNothingAfterTheHotKey)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.observer->cancelHold();
    desktop.elapseAll();
    EXPECT_EQ(desktop.shows, 0);
    desktop.hold(none);
    desktop.hold(combination);
    desktop.elapseAll();
    EXPECT_EQ(desktop.shows, 1) << "the next hold is one again";
}

TEST(HoldToShow, ShowsNothingForAHotKeyThatComesWhileTheStateIsAsked)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.delays.takeFirst().function();
    desktop.observer->cancelHold();
    settle();
    EXPECT_EQ(desktop.shows, 0);
}

TEST(HoldToShow, HidesItsOverlayAlsoAfterTheHotKey)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.elapseOldest();
    desktop.observer->cancelHold();
    EXPECT_TRUE(desktop.isVisible);
    desktop.hold(none);
    EXPECT_FALSE(desktop.isVisible);
}

TEST(HoldToShow, DismissesAtOnce)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.elapseOldest();
    desktop.observer->dismissIfNeeded();
    desktop.observer->dismissIfNeeded();
    EXPECT_EQ(desktop.hides, 1);

    desktop.hold(combination);
    desktop.observer->dismissIfNeeded();
    desktop.elapseAll();
    EXPECT_EQ(desktop.shows, 1);
    EXPECT_EQ(desktop.hides, 1);
}

TEST(HoldToShow, ShowsNothingWhenItIsGone)
{
    Desktop desktop;
    desktop.hold(combination);
    desktop.hold(combination);
    desktop.delays.takeLast().function();
    desktop.observer.reset();
    desktop.elapseAll();
    settle();
    EXPECT_EQ(desktop.shows, 0);
}

TEST(HoldToShow, TakesTheTimeOfTheEventLoopByDefault)
{
    FakeInputMonitor input;
    FakeAccessibility accessibility;
    bool isShown = false;
    HoldToShowObserver observer(input, accessibility,
                                {.show = [&] { isShown = true; },
                                 .hide = [] {},
                                 .isVisible =
                                     [] {
                                         return false;
                                     }});
    observer.start();
    ASSERT_TRUE(becomesTrue([&] { return input.watchesModifiers(); }));
    input.changeModifiers(combination);
    EXPECT_TRUE(becomesTrue([&] { return isShown; }));
}

} // namespace keyvora
