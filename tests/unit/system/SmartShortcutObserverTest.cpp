// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "system/SmartShortcutObserver.h"

#include "contract/Waiting.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeInputMonitor.h"
#include "unit/QtPrinters.h"
#include "unit/Settle.h"

#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const PopupPress onCopy{{100, 200}, 4711};
const PopupPress onPaste{{100, 220}, 4711};
const PopupPress onNothing{{100, 0}, 4711};

/// A desktop on which a menu is open, and what the observer tells about it.
class Desktop
{
public:
    Desktop()
    {
        accessibility.setTitleAt(onCopy.pid, onCopy.position, u"Copy"_s);
        accessibility.setTitleAt(onPaste.pid, onPaste.position, u"Paste"_s);
    }

    void startWatching()
    {
        observer->start();
        EXPECT_TRUE(becomesTrue([this] { return input.watchesPopupPresses(); }));
    }

    FakeInputMonitor input;
    FakeAccessibility accessibility;
    QStringList titles;
    std::unique_ptr<SmartShortcutObserver> observer =
        std::make_unique<SmartShortcutObserver>(input, accessibility, [this](const QString &title) {
            EXPECT_EQ(QThread::currentThread(), input.thread());
            titles.append(title);
        });
};

} // namespace

TEST(SmartShortcutObserver, WatchesNothingByItself)
{
    Desktop desktop;
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
    EXPECT_EQ(desktop.accessibility.trustChecks(), 0);
}

TEST(SmartShortcutObserver, TellsTheTitleOfThePressedItem)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.input.press(onCopy);
    EXPECT_TRUE(becomesTrue([&] { return desktop.titles == QStringList{u"Copy"_s}; }));
    EXPECT_EQ(desktop.accessibility.hitTests(),
              (QList<std::pair<qint32, QPoint>>{{onCopy.pid, onCopy.position}}));
}

TEST(SmartShortcutObserver, ExaminesEachPress)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.input.press(onCopy);
    desktop.input.press(onCopy);
    desktop.input.press(onPaste);
    EXPECT_TRUE(becomesTrue([&] { return desktop.titles == QStringList{u"Copy"_s, u"Copy"_s, u"Paste"_s}; }));
}

TEST(SmartShortcutObserver, IgnoresAPressBesideTheItems)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.input.press(onNothing);
    settle();
    EXPECT_EQ(desktop.accessibility.hitTests().size(), 1);
    EXPECT_TRUE(desktop.titles.isEmpty());
}

TEST(SmartShortcutObserver, IgnoresAPressThatNobodyExplains)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.accessibility.setGivesAnswers(false);
    desktop.input.press(onCopy);
    settle();
    EXPECT_TRUE(desktop.titles.isEmpty());
    desktop.accessibility.setGivesAnswers(true);
    desktop.input.press(onPaste);
    EXPECT_TRUE(becomesTrue([&] { return desktop.titles == QStringList{u"Paste"_s}; }));
}

TEST(SmartShortcutObserver, StartsOnce)
{
    Desktop desktop;
    desktop.observer->start();
    desktop.observer->start();
    settle();
    desktop.observer->start();
    settle();
    EXPECT_TRUE(desktop.input.watchesPopupPresses());
    EXPECT_EQ(desktop.accessibility.trustChecks(), 1);
    desktop.input.press(onCopy);
    settle();
    EXPECT_EQ(desktop.titles, QStringList{u"Copy"_s});
}

TEST(SmartShortcutObserver, StaysAwayWithoutTrustAndDoesNotAskForIt)
{
    Desktop desktop;
    desktop.accessibility.setTrusted(false);
    QSignalSpy prompts(&desktop.accessibility, &Accessibility::trustRequested);
    desktop.observer->start();
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
    EXPECT_TRUE(prompts.isEmpty());
}

TEST(SmartShortcutObserver, TakesAMissingAnswerAboutTrustForANo)
{
    Desktop desktop;
    desktop.accessibility.setGivesAnswers(false);
    desktop.observer->start();
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
}

TEST(SmartShortcutObserver, HeedsTrustThatComesLaterOnlyWhenItIsStartedAgain)
{
    Desktop desktop;
    desktop.accessibility.setTrusted(false);
    desktop.observer->start();
    settle();
    desktop.accessibility.setTrusted(true);
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
    EXPECT_EQ(desktop.accessibility.trustChecks(), 1);
    desktop.observer->stop();
    desktop.startWatching();
}

TEST(SmartShortcutObserver, StopsAtOnce)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.observer->stop();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
    desktop.observer->stop();
    desktop.input.press(onCopy);
    settle();
    EXPECT_TRUE(desktop.accessibility.hitTests().isEmpty());
}

TEST(SmartShortcutObserver, StopsWhileTrustIsBeingChecked)
{
    Desktop desktop;
    desktop.observer->start();
    desktop.observer->stop();
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
}

TEST(SmartShortcutObserver, StartsAgainAfterItStopped)
{
    Desktop desktop;
    desktop.observer->start();
    desktop.observer->stop();
    desktop.startWatching();
    desktop.observer->stop();
    desktop.startWatching();
    desktop.input.press(onCopy);
    EXPECT_TRUE(becomesTrue([&] { return desktop.titles == QStringList{u"Copy"_s}; }));
}

TEST(SmartShortcutObserver, HeedsOnlyTheCheckOfItsLatestStart)
{
    Desktop desktop;
    desktop.observer->start();
    desktop.observer->stop();
    desktop.accessibility.setTrusted(false);
    desktop.observer->start();
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
}

TEST(SmartShortcutObserver, TellsNothingThatWasPressedBeforeItStopped)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.input.press(onCopy);
    desktop.observer->stop();
    desktop.startWatching();
    settle();
    EXPECT_EQ(desktop.accessibility.hitTests().size(), 1);
    EXPECT_TRUE(desktop.titles.isEmpty());
}

TEST(SmartShortcutObserver, EndsTheWatchWithItself)
{
    Desktop desktop;
    desktop.startWatching();
    desktop.input.press(onCopy);
    desktop.observer.reset();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
    settle();
    EXPECT_TRUE(desktop.titles.isEmpty());
}

TEST(SmartShortcutObserver, DiesWhileTrustIsBeingChecked)
{
    Desktop desktop;
    desktop.observer->start();
    desktop.observer.reset();
    settle();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
}

TEST(SmartShortcutObserver, LivesWhereNobodyMayWatch)
{
    Desktop desktop;
    desktop.input.setAvailable(false);
    desktop.observer->start();
    settle();
    desktop.input.press(onCopy);
    desktop.observer->stop();
    EXPECT_FALSE(desktop.input.watchesPopupPresses());
    EXPECT_TRUE(desktop.titles.isEmpty());
}

TEST(SmartShortcutObserver, DropsPressesWhileManyAreBeingLookedUp)
{
    Desktop desktop;
    desktop.startWatching();
    for (int i = 0; i < 20; ++i)
        desktop.input.press(onCopy);
    EXPECT_EQ(desktop.accessibility.hitTests().size(), 8);
    EXPECT_TRUE(becomesTrue([&] { return desktop.titles.size() == 8; }));
    desktop.input.press(onCopy);
    EXPECT_EQ(desktop.accessibility.hitTests().size(), 9);
}

} // namespace keyvora
