// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/DailyShortcuts.h"

#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

/// Shortcuts with the ids "0", "1" and so on.
QList<Shortcut> numbered(int count)
{
    QList<Shortcut> shortcuts;
    for (int number = 0; number < count; ++number)
        shortcuts.append(makeShortcut(QString::number(number)));
    return shortcuts;
}

QStringList trioOf(const QList<Shortcut> &shortcuts, qsizetype daily, const QString &activeApp = u"Mac"_s,
                   const QHash<QString, qint64> &usageCounts = {})
{
    return idsOf(dailyTrio(shortcuts, shortcuts.at(daily), activeApp, usageCounts));
}

} // namespace

TEST(DailyShortcut, IsTheFirstOneAtNewYear)
{
    EXPECT_EQ(dailyShortcut(numbered(100), QDate(2026, 1, 1)).id, u"0"_s);
    EXPECT_EQ(dailyShortcut(numbered(100), QDate(2027, 1, 1)).id, u"0"_s);
}

TEST(DailyShortcut, WalksThroughTheListAndBeginsAnew)
{
    EXPECT_EQ(dailyShortcut(numbered(100), QDate(2026, 1, 2)).id, u"1"_s);
    EXPECT_EQ(dailyShortcut(numbered(100), QDate(2026, 4, 10)).id, u"99"_s);
    EXPECT_EQ(dailyShortcut(numbered(100), QDate(2026, 4, 11)).id, u"0"_s);
    EXPECT_EQ(dailyShortcut(numbered(100), QDate(2024, 12, 31)).id, u"65"_s);
}

TEST(DailyShortcut, NeedsNeitherDateNorList)
{
    EXPECT_EQ(dailyShortcut(numbered(3), QDate()).id, u"0"_s);
    EXPECT_EQ(dailyShortcut({}, QDate(2026, 5, 5)), Shortcut());
}

TEST(DailyTrio, TakesTheNextOnesWhereNothingElseFits)
{
    EXPECT_EQ(trioOf(numbered(10), 4), (QStringList{u"4"_s, u"5"_s, u"6"_s}));
    EXPECT_EQ(trioOf(numbered(10), 9), (QStringList{u"9"_s, u"0"_s, u"1"_s}));
}

TEST(DailyTrio, HasATipForTheActiveApplication)
{
    QList<Shortcut> shortcuts = numbered(10);
    shortcuts[2].apps = QStringList{u"Finder"_s};
    shortcuts[7].apps = QStringList{u"Safari"_s, u"Finder"_s};
    EXPECT_EQ(trioOf(shortcuts, 4, u"Finder"_s), (QStringList{u"4"_s, u"2"_s, u"6"_s}));
    EXPECT_EQ(trioOf(shortcuts, 2, u"Finder"_s), (QStringList{u"2"_s, u"7"_s, u"4"_s}));
    EXPECT_EQ(trioOf(shortcuts, 4, u"finder"_s), (QStringList{u"4"_s, u"5"_s, u"6"_s}));
}

TEST(DailyTrio, HasTheOneMostUsed)
{
    EXPECT_EQ(trioOf(numbered(10), 4, u"Mac"_s, {{u"8"_s, 3}, {u"9"_s, 5}}),
              (QStringList{u"4"_s, u"5"_s, u"9"_s}));
    EXPECT_EQ(trioOf(numbered(10), 4, u"Mac"_s, {{u"8"_s, 5}, {u"9"_s, 5}}),
              (QStringList{u"4"_s, u"5"_s, u"8"_s}));
}

TEST(DailyTrio, DoesNotCountUseOfTheTwoBefore)
{
    EXPECT_EQ(trioOf(numbered(10), 4, u"Mac"_s, {{u"4"_s, 9}, {u"5"_s, 8}, {u"1"_s, 1}}),
              (QStringList{u"4"_s, u"5"_s, u"1"_s}));
    EXPECT_EQ(trioOf(numbered(10), 4, u"Mac"_s, {{u"4"_s, 9}, {u"5"_s, 8}, {u"gone"_s, 7}}),
              (QStringList{u"4"_s, u"5"_s, u"6"_s}));
}

TEST(DailyTrio, TellsAShortcutOnce)
{
    QList<Shortcut> shortcuts = numbered(10);
    shortcuts[6].apps = QStringList{u"Finder"_s};
    EXPECT_EQ(trioOf(shortcuts, 4, u"Finder"_s), (QStringList{u"4"_s, u"6"_s}));
    EXPECT_EQ(trioOf(numbered(2), 1), (QStringList{u"1"_s, u"0"_s}));
}

TEST(DailyTrio, OfOneShortcutHasOneEntry)
{
    EXPECT_EQ(trioOf(numbered(1), 0), QStringList{u"0"_s});
    EXPECT_TRUE(dailyTrio({}, {}, u"Mac"_s, {}).isEmpty());
}

TEST(DailyTrio, CountsFromTheStartWhereTheDailyOneIsNotListed)
{
    EXPECT_EQ(idsOf(dailyTrio(numbered(5), makeShortcut(u"other"_s), u"Mac"_s, {})),
              (QStringList{u"other"_s, u"1"_s, u"2"_s}));
}

} // namespace keyvora
