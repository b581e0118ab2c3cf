// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeDraw.h"

#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace keyvora {

namespace {

using Stats = QHash<QString, PracticeStat>;

UniformRandom seeded(quint64 seed)
{
    return [generator = std::mt19937_64(seed)]() mutable {
        return static_cast<double>(generator() >> 11U) / static_cast<double>((1ULL << 53U) - 1);
    };
}

UniformRandom always(double number)
{
    return [number] {
        return number;
    };
}

QList<Shortcut> catalog()
{
    return ShortcutLibrary::all(AppLanguage::English);
}

QList<Shortcut> eligibleCatalog()
{
    return weightedPracticeItems(catalog(), {}, catalog().size(), always(0.5));
}

/// Pearson's statistic of how often each shortcut was drawn first, against its share of all weights.
double chiSquaredOfFirstItems(const QList<Shortcut> &shortcuts, const Stats &stats, int draws)
{
    const UniformRandom random = seeded(20260311);
    QHash<QString, int> firsts;
    for (int draw = 0; draw < draws; ++draw)
        ++firsts[weightedPracticeItems(shortcuts, stats, 1, random).constFirst().id];
    double allWeights = 0;
    for (const Shortcut &shortcut : shortcuts)
        allWeights += practiceWeight(stats.value(shortcut.id));
    double sum = 0;
    for (const Shortcut &shortcut : shortcuts) {
        const double expected = draws * practiceWeight(stats.value(shortcut.id)) / allWeights;
        const double difference = firsts.value(shortcut.id) - expected;
        sum += difference * difference / expected;
    }
    return sum;
}

} // namespace

TEST(PracticeWeight, FavoursWhatWasNeverAnswered)
{
    EXPECT_EQ(practiceWeight({}), 3.0);
    EXPECT_EQ(practiceWeight({.seen = 0, .wrong = 2}), 3.0);
    EXPECT_EQ(practiceWeight({.seen = -1, .wrong = 0}), 3.0);
}

TEST(PracticeWeight, GrowsWithTheShareOfWrongAnswers)
{
    EXPECT_EQ(practiceWeight({.seen = 7, .wrong = 0}), 1.0);
    EXPECT_EQ(practiceWeight({.seen = 4, .wrong = 1}), 2.0);
    EXPECT_EQ(practiceWeight({.seen = 3, .wrong = 3}), 5.0);
}

TEST(PracticeWeight, IsPositiveWhateverIsStored)
{
    EXPECT_EQ(practiceWeight({.seen = 1, .wrong = -100}), 0.05);
}

TEST(PracticeDraw, NeverOffersWhatIsUnsafeOrHoldsTheRightArrow)
{
    const QSet<QString> unsafe{
        u"emoji"_s,       u"spotlight"_s,    u"shot-full"_s,       u"shot-area"_s,   u"shot-tools"_s,
        u"lock"_s,        u"logout"_s,       u"shot-clipboard"_s,  u"dock-toggle"_s, u"desktop"_s,
        u"app-windows"_s, u"space-left"_s,   u"mission-control"_s, u"space-right"_s, u"input-source"_s,
        u"quit"_s,        u"close-window"_s, u"minimize"_s,        u"hide"_s,
    };
    EXPECT_EQ(practiceUnsafeIDs(), unsafe);
    const QStringList drawn = idsOf(eligibleCatalog());
    for (const Shortcut &shortcut : catalog()) {
        const bool isOut = practiceUnsafeIDs().contains(shortcut.id) || shortcut.keys.contains(u"→"_s);
        EXPECT_EQ(drawn.contains(shortcut.id), !isOut) << shortcut.id.toStdString();
    }
}

TEST(PracticeDraw, OffersOwnShortcutsToo)
{
    const QList<Shortcut> shortcuts{
        makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"J"_s}),
        makeShortcut(u"custom-2"_s, u"Steps"_s, {u"⌘"_s, u"K"_s, u"→"_s, u"C"_s})};
    EXPECT_EQ(idsOf(weightedPracticeItems(shortcuts, {}, 8, always(0.5))), QStringList{u"custom-1"_s});
}

TEST(PracticeDraw, GivesAllWhenThereAreFewer)
{
    const QList<Shortcut> few = catalog().first(3);
    QStringList drawn = idsOf(weightedPracticeItems(few, {}, 8, seeded(1)));
    drawn.sort();
    EXPECT_EQ(drawn, (QStringList{u"copy"_s, u"paste"_s, u"undo"_s}));
}

TEST(PracticeDraw, GivesDifferentShortcuts)
{
    const UniformRandom random = seeded(7);
    for (int round = 0; round < 100; ++round) {
        const QStringList drawn = idsOf(weightedPracticeItems(catalog(), {}, 8, random));
        EXPECT_EQ(drawn.size(), 8);
        EXPECT_EQ(QSet<QString>(drawn.begin(), drawn.end()).size(), 8);
    }
}

TEST(PracticeDraw, CanGiveNothing)
{
    EXPECT_TRUE(weightedPracticeItems(catalog(), {}, 0, always(0.5)).isEmpty());
    EXPECT_TRUE(weightedPracticeItems({}, {}, 8, always(0.5)).isEmpty());
    EXPECT_TRUE(weightedPracticeItems({catalog().at(8)}, {}, 8, always(0.5)).isEmpty());
}

TEST(PracticeDraw, KeepsTheOrderOfEquals)
{
    EXPECT_EQ(idsOf(eligibleCatalog().first(3)), (QStringList{u"copy"_s, u"paste"_s, u"undo"_s}));
    EXPECT_EQ(idsOf(weightedPracticeItems(catalog(), {}, 2, always(0.0))),
              (QStringList{u"copy"_s, u"paste"_s}));
    EXPECT_EQ(idsOf(weightedPracticeItems(catalog(), {}, 2, always(1.0))),
              (QStringList{u"copy"_s, u"paste"_s}));
}

TEST(PracticeDraw, PutsHeavierShortcutsFirst)
{
    const Stats stats{{u"copy"_s, {2, 0}}, {u"paste"_s, {2, 1}}, {u"undo"_s, {2, 2}}};
    EXPECT_EQ(idsOf(weightedPracticeItems(catalog().first(4), stats, 4, always(0.5))),
              (QStringList{u"undo"_s, u"paste"_s, u"redo"_s, u"copy"_s}));
}

TEST(PracticeDraw, TellsWeightsApartEvenByTheLowestNumber)
{
    const Stats stats{{u"copy"_s, {2, 0}}, {u"paste"_s, {2, 1}}, {u"undo"_s, {2, 2}}};
    EXPECT_EQ(idsOf(weightedPracticeItems(catalog().first(3), stats, 3, always(0.0))),
              (QStringList{u"undo"_s, u"paste"_s, u"copy"_s}));
}

TEST(PracticeDraw, FollowsItsWeights)
{
    const Stats stats{{u"copy"_s, {4, 0}},
                      {u"paste"_s, {4, 1}},
                      {u"undo"_s, {0, 0}},
                      {u"save"_s, {5, 5}},
                      {u"redo"_s, {8, 3}}};
    // With five degrees of freedom one seed in a thousand exceeds this.
    EXPECT_LT(chiSquaredOfFirstItems(catalog().first(6), stats, 100'000), 20.52);
}

TEST(PracticeDraw, FollowsItsWeightsOverTheWholeCatalog)
{
    const QList<Shortcut> eligible = eligibleCatalog();
    Stats stats;
    for (qsizetype position = 0; position < eligible.size(); position += 2)
        stats.insert(eligible.at(position).id, {.seen = 10, .wrong = position % 11});
    ASSERT_EQ(eligible.size(), 91);
    // With 90 degrees of freedom one seed in a thousand exceeds this.
    EXPECT_LT(chiSquaredOfFirstItems(eligible, stats, 100'000), 137.2);
}

TEST(PracticeDraw, TestSeesWrongWeights)
{
    const QList<Shortcut> eligible = catalog().first(4);
    const UniformRandom random = seeded(20260311);
    // The statistic of draws by other weights than the ones compared with.
    QHash<QString, int> firsts;
    for (int draw = 0; draw < 100'000; ++draw)
        ++firsts[weightedPracticeItems(eligible, {{u"copy"_s, {100, 45}}}, 1, random).constFirst().id];
    double sum = 0;
    for (const Shortcut &shortcut : eligible)
        sum += std::pow(firsts.value(shortcut.id) - 25'000.0, 2) / 25'000.0;
    EXPECT_GT(sum, 16.27);
}

TEST(PracticeDrawDeathTest, RefusesANegativeCount)
{
    EXPECT_DEATH(std::ignore = weightedPracticeItems(catalog(), {}, -1, always(0.5)), "");
}

TEST(SystemRandom, StaysInTheUnitInterval)
{
    const UniformRandom random = systemRandom();
    QSet<double> seen;
    for (int draw = 0; draw < 1000; ++draw) {
        const double number = random();
        EXPECT_GE(number, 0.0);
        EXPECT_LE(number, 1.0);
        seen.insert(number);
    }
    EXPECT_GT(seen.size(), 990);
}

TEST(SystemRandom, HasTheDigitsOfADouble)
{
    constexpr double largestOf32Bits = 4294967295.0;
    const UniformRandom random = systemRandom();
    int finer = 0;
    for (int draw = 0; draw < 1000; ++draw) {
        const double number = random() * largestOf32Bits;
        if (std::abs(number - std::round(number)) > 0.001)
            ++finer;
    }
    EXPECT_GT(finer, 900);
}

} // namespace keyvora
