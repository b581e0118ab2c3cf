// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/AtspiAccessibility.h"

#include "contract/accessibility/StrangeApplication.h"
#include "unit/QtPrinters.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Command
{
    QString title;
    QString key;
    std::optional<int> modifiers;

    friend bool operator==(const Command &, const Command &) = default;
};

/// The entries that have a key, in the order of the tree.
QList<Command> commands(const MenuTree &tree)
{
    QList<Command> found;
    for (const MenuElement &element : tree.elements) {
        if (!element.commandCharacter.isEmpty())
            found.append({element.title, element.commandCharacter, element.modifiers});
    }
    return found;
}

/// For an application that is slow to answer, but does.
const AtspiAccessibility::Patience muchPatience{
    .trust = patience.trust,
    .menuBar = {.silence = std::chrono::seconds(20), .total = std::chrono::seconds(20)},
    .hitTest = patience.hitTest,
};

std::optional<MenuTree> read(const StrangeApplication &application,
                             const AtspiAccessibility::Patience &patienceWithIt = patience)
{
    AtspiAccessibility accessibility(patienceWithIt);
    return waitFor(accessibility.menuBar(application.pid()));
}

const QList<Command> ordinaryCommands{{u"New"_s, u"n"_s, 12}, {u"Save As..."_s, u"s"_s, 13}};

/// The most memory that this process ever had, in KiB.
qint64 peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// The switch of the desktop.
bool setAccessibility(const QString &property, bool isOn)
{
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                       u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
    call << u"org.a11y.Status"_s << property << QVariant::fromValue(QDBusVariant(isOn));
    return QDBusConnection::sessionBus().call(call).type() == QDBusMessage::ReplyMessage;
}

bool isOn(const QString &property)
{
    QDBusMessage call = QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s,
                                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << u"org.a11y.Status"_s << property;
    return qvariant_cast<QDBusVariant>(QDBusConnection::sessionBus().call(call).arguments().value(0))
        .variant()
        .toBool();
}

} // namespace

TEST(AtspiAccessibility, ReadsTheMenuBarOfAnApplication)
{
    const StrangeApplication application(u"ordinary"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    const std::vector<MenuElement> expected{
        {.title = {}, .commandCharacter = {}, .modifiers = {}, .children = {1}},
        {.title = u"File"_s, .commandCharacter = {}, .modifiers = {}, .children = {2, 3}},
        {.title = u"New"_s, .commandCharacter = u"n"_s, .modifiers = 12, .children = {}},
        {.title = u"Save As..."_s, .commandCharacter = u"s"_s, .modifiers = 13, .children = {}},
    };
    EXPECT_EQ(tree->elements, expected);
}

TEST(AtspiAccessibility, ReadsAgainAndAgain)
{
    const StrangeApplication application(u"ordinary"_s);
    ASSERT_TRUE(application.isReady());
    AtspiAccessibility accessibility(patience);
    for (int i = 0; i < 20; ++i) {
        const auto tree = waitFor(accessibility.menuBar(application.pid()));
        ASSERT_TRUE(tree);
        EXPECT_EQ(commands(*tree), ordinaryCommands);
    }
}

TEST(AtspiAccessibility, HasNothingOfAProcessThatIsNotOnTheBus)
{
    AtspiAccessibility accessibility(patience);
    EXPECT_EQ(waitFor(accessibility.menuBar(1)), std::nullopt);
    EXPECT_EQ(waitFor(accessibility.menuItemTitleAt(1, {10, 10})), QString());
}

TEST(AtspiAccessibility, ComesBackFromACycle)
{
    const StrangeApplication application(u"cycle"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    EXPECT_EQ(commands(*tree), ordinaryCommands);
}

TEST(AtspiAccessibility, ReadsAnApplicationThatKeepsItsObjectsReady)
{
    const StrangeApplication application(u"cached"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application, muchPatience);
    ASSERT_TRUE(tree);
    EXPECT_EQ(commands(*tree), ordinaryCommands);
}

TEST(AtspiAccessibility, ComesBackFromACycleAmongObjectsKeptReady)
{
    const StrangeApplication application(u"cached-cycle"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application, muchPatience);
    EXPECT_TRUE(!tree || tree->elements.size() < 10);
}

TEST(AtspiAccessibility, GivesUpAHitTestOfAnApplicationThatIsStopped)
{
    StrangeApplication application(u"ordinary"_s);
    ASSERT_TRUE(application.isReady());
    application.stop();
    AtspiAccessibility accessibility(patience);
    EXPECT_EQ(waitFor(accessibility.menuItemTitleAt(application.pid(), {10, 10})), QString());
}

TEST(AtspiAccessibility, ReadsTheFirstOfAMillionEntries)
{
    const StrangeApplication application(u"million"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    const QList<Command> found = commands(*tree);
    ASSERT_GT(found.size(), 100);
    EXPECT_LE(found.size(), 20'000);
    EXPECT_EQ(found.constFirst().title, u"Entry 0"_s);
}

TEST(AtspiAccessibility, DoesNotGrowWithWhatALiarSends)
{
    const StrangeApplication application(u"liar"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    EXPECT_LE(tree->elements.size(), 20'000U);
}

TEST(AtspiAccessibility, ReadsAMenuTenThousandDeep)
{
    const StrangeApplication application(u"deep"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    const QList<Command> found = commands(*tree);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found.at(0).title, u"First"_s);
    EXPECT_EQ(found.at(1).title, u"Last"_s);
}

TEST(AtspiAccessibility, MakesTitlesHarmless)
{
    const StrangeApplication application(u"titles"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    const QList<Command> found = commands(*tree);
    ASSERT_EQ(found.size(), 7);
    EXPECT_LE(found.at(0).title.size(), 256);
    EXPECT_TRUE(found.at(0).title.endsWith(u'…'));
    // Markup is text like any other; who shows it shows it plainly.
    EXPECT_EQ(found.at(1).title, u"<b>Bold</b> <img src='file:///etc/passwd'>"_s);
    EXPECT_EQ(found.at(2).title, u"ab dc e"_s);
    EXPECT_EQ(found.at(3).title, u"bell  and [31m red line"_s);
    EXPECT_EQ(found.at(4).title, u"New"_s);
    EXPECT_EQ(found.at(5).title, u"Manual tab"_s);
    EXPECT_EQ(found.at(6).title, QString());
}

TEST(AtspiAccessibility, TakesNoNonsenseForKeys)
{
    const StrangeApplication application(u"keys"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    EXPECT_EQ(commands(*tree), (QList<Command>{{u"Save"_s, u"s"_s, 12}}));
}

TEST(AtspiAccessibility, TakesValuesOfOtherTypesForAbsent)
{
    const StrangeApplication application(u"types"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    EXPECT_TRUE(commands(*tree).isEmpty());
    EXPECT_TRUE(std::ranges::all_of(tree->elements,
                                    [](const MenuElement &element) { return element.title.isEmpty(); }));
}

TEST(AtspiAccessibility, AsksNobodyElseOnAnApplicationsBehalf)
{
    const StrangeApplication application(u"foreign"_s);
    ASSERT_TRUE(application.isReady());
    EXPECT_EQ(read(application), std::nullopt);
}

TEST(AtspiAccessibility, GivesUpAnApplicationThatIsStopped)
{
    StrangeApplication application(u"ordinary"_s);
    ASSERT_TRUE(application.isReady());
    application.stop();
    EXPECT_EQ(read(application), std::nullopt);
}

TEST(AtspiAccessibility, GivesUpAnApplicationThatIsSilent)
{
    const StrangeApplication application(u"silent"_s);
    ASSERT_TRUE(application.isReady());
    EXPECT_EQ(read(application), std::nullopt);
}

TEST(AtspiAccessibility, KeepsWhatAnApplicationToldBeforeItFellSilent)
{
    const StrangeApplication application(u"falls-silent"_s);
    ASSERT_TRUE(application.isReady());
    const auto tree = read(application);
    ASSERT_TRUE(tree);
    EXPECT_GT(tree->elements.size(), 1U);
    EXPECT_LT(commands(*tree).size(), 2);
}

TEST(AtspiAccessibility, GivesUpAnApplicationThatTakesSeconds)
{
    const StrangeApplication application(u"slow"_s);
    const StrangeApplication other(u"ordinary"_s);
    ASSERT_TRUE(application.isReady() && other.isReady());
    AtspiAccessibility accessibility(patience);
    const auto tree = waitFor(accessibility.menuBar(application.pid()));
    EXPECT_TRUE(!tree || commands(*tree).isEmpty());
    const auto next = waitFor(accessibility.menuBar(other.pid()));
    ASSERT_TRUE(next);
    EXPECT_EQ(commands(*next), ordinaryCommands);
}

TEST(AtspiAccessibility, SurvivesAnApplicationThatEndsInMidWalk)
{
    StrangeApplication application(u"ends"_s);
    const StrangeApplication other(u"ordinary"_s);
    ASSERT_TRUE(application.isReady() && other.isReady());
    AtspiAccessibility accessibility(patience);
    const auto tree = waitFor(accessibility.menuBar(application.pid()));
    EXPECT_TRUE(!tree || commands(*tree).isEmpty());
    EXPECT_TRUE(application.hasEnded());
    const auto next = waitFor(accessibility.menuBar(other.pid()));
    ASSERT_TRUE(next);
    EXPECT_EQ(commands(*next), ordinaryCommands);
}

TEST(AtspiAccessibility, DoesNotGrowWithObjectsThatAllClaimAMillionChildren)
{
    const StrangeApplication application(u"crowd"_s);
    ASSERT_TRUE(application.isReady());
    const qint64 before = peakMemory();
    static_cast<void>(read(application));
    constexpr qint64 bound = 64LL * 1024;
    EXPECT_LT(peakMemory() - before, bound);
}

TEST(AtspiAccessibility, ReadsOthersBesideOneThatIsStopped)
{
    StrangeApplication stopped(u"ordinary"_s);
    const StrangeApplication other(u"ordinary"_s);
    ASSERT_TRUE(stopped.isReady() && other.isReady());
    stopped.stop();
    AtspiAccessibility accessibility(patience);
    const auto nothing = accessibility.menuBar(stopped.pid());
    const auto something = accessibility.menuBar(other.pid());
    EXPECT_EQ(waitFor(nothing), std::nullopt);
    const auto tree = waitFor(something);
    ASSERT_TRUE(tree);
    EXPECT_EQ(commands(*tree), ordinaryCommands);
}

TEST(AtspiAccessibility, EndsWhileItWaitsForAnApplication)
{
    StrangeApplication application(u"ordinary"_s);
    ASSERT_TRUE(application.isReady());
    application.stop();
    QFuture<std::optional<MenuTree>> future;
    {
        const AtspiAccessibility::Patience endless{
            .trust = {.silence = std::chrono::hours(1), .total = std::chrono::hours(1)},
            .menuBar = {.silence = std::chrono::hours(1), .total = std::chrono::hours(1)},
            .hitTest = {.silence = std::chrono::hours(1), .total = std::chrono::hours(1)}};
        AtspiAccessibility accessibility(endless);
        future = accessibility.menuBar(application.pid());
    }
    EXPECT_TRUE(future.isFinished());
}

TEST(AtspiAccessibility, IsTrustedAsLongAsTheDesktopsSwitchIsOn)
{
    AtspiAccessibility accessibility(patience);
    EXPECT_TRUE(waitFor(accessibility.isTrusted()));
    ASSERT_TRUE(setAccessibility(u"IsEnabled"_s, false));
    EXPECT_FALSE(waitFor(accessibility.isTrusted()));
    ASSERT_TRUE(setAccessibility(u"IsEnabled"_s, true));
    EXPECT_TRUE(waitFor(accessibility.isTrusted()));
}

TEST(AtspiAccessibility, GrantsTrustAndSwitchesNothingElse)
{
    const StrangeApplication application(u"ordinary"_s);
    ASSERT_TRUE(application.isReady());
    ASSERT_TRUE(setAccessibility(u"IsEnabled"_s, false));
    AtspiAccessibility accessibility(patience);
    EXPECT_EQ(waitFor(accessibility.menuBar(application.pid())), std::nullopt);
    EXPECT_TRUE(waitFor(accessibility.grantTrust()));
    EXPECT_TRUE(waitFor(accessibility.isTrusted()));
    EXPECT_TRUE(isOn(u"IsEnabled"_s));
    EXPECT_FALSE(isOn(u"ScreenReaderEnabled"_s));
    EXPECT_TRUE(waitFor(accessibility.menuBar(application.pid())));
}

} // namespace keyvora
