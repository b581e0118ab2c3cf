// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/DailyLesson.h"

#include "model/ShortcutListModel.h"
#include "unit/model/LocalTimeZone.h"
#include "unit/model/Program.h"

#include <QSignalSpy>
#include <QTimeZone>

#include <gtest/gtest.h>
#include <limits>

namespace keyvora {

namespace {

QDateTime utc(int day, int hour, int minute = 0, int second = 0)
{
    return {QDate(2026, 3, day), QTime(hour, minute, second), Qt::UTC};
}

QStringList titlesOf(const DailyLesson &lesson)
{
    QStringList titles;
    for (int row = 0; row < lesson.trio()->rowCount(); ++row)
        titles.append(
            lesson.trio()->data(lesson.trio()->index(row), ShortcutListModel::TitleRole).toString());
    return titles;
}

/// The window of the program shows the lesson.
void showLesson(Program &program)
{
    program.model().setSelection({.kind = SidebarSelection::Kind::daily});
}

} // namespace

TEST(DailyLesson, ShowsTheTrioOfTheDay)
{
    Program program;
    showLesson(program);
    const DailyLesson lesson(program.model(), program.defaults());
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"Paste"_s, u"Undo"_s}));
}

TEST(DailyLesson, FollowsTheProgram)
{
    Program program({.frontmost = RunningApplication{u"Finder"_s, 1}});
    showLesson(program);
    const DailyLesson lesson(program.model(), program.defaults());
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"New Folder"_s, u"Undo"_s}));
    program.workspace.activate({u"Mac"_s, 2});
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"Paste"_s, u"Undo"_s}));
    program.model().recordMouseAction(u"Select All"_s);
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"Paste"_s, u"Select All"_s}));
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Kopírovat"_s, u"Vložit"_s, u"Vybrat vše"_s}));
    program.localization().setLanguage(AppLanguage::English);
}

TEST(DailyLesson, FollowsTheUsersOwnShortcuts)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"J"_s}, {u"Editor"_s});
    Program program({.stored = storedCustom({own}), .frontmost = RunningApplication{u"Editor"_s, 1}});
    showLesson(program);
    const DailyLesson lesson(program.model(), program.defaults());
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"Own"_s, u"Undo"_s}));
    program.model().deleteCustom(own);
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"Paste"_s, u"Undo"_s}));
}

TEST(DailyLesson, FollowsOnlyWhileItIsShown)
{
    Program program({.frontmost = RunningApplication{u"Finder"_s, 1}});
    const DailyLesson lesson(program.model(), program.defaults());
    const QSignalSpy changes(&lesson, &DailyLesson::changed);
    program.workspace.activate({u"Mac"_s, 2});
    EXPECT_TRUE(changes.isEmpty());
    showLesson(program);
    EXPECT_EQ(titlesOf(lesson), (QStringList{u"Copy"_s, u"Paste"_s, u"Undo"_s}));
}

TEST(DailyLesson, TurnsAtLocalMidnight)
{
    const LocalTimeZone zone("JST-9");
    Program program;
    DailyLesson lesson(program.model(), program.defaults());
    program.now = QDateTime(QDate(2026, 1, 1), QTime(23, 59, 59));
    lesson.refresh();
    EXPECT_EQ(titlesOf(lesson).constFirst(), u"Copy"_s);
    program.now = QDateTime(QDate(2026, 1, 2), QTime(0, 0));
    lesson.refresh();
    EXPECT_EQ(titlesOf(lesson).constFirst(), u"Paste"_s);
}

TEST(DailyLesson, IsCountedOncePerDay)
{
    Program program;
    program.now = utc(2, 8);
    DailyLesson lesson(program.model(), program.defaults());
    const QSignalSpy changes(&lesson, &DailyLesson::changed);
    EXPECT_EQ(lesson.streak(), 0);
    EXPECT_FALSE(lesson.isComplete());
    lesson.complete();
    EXPECT_EQ(lesson.streak(), 1);
    EXPECT_TRUE(lesson.isComplete());
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(program.stored()[u"learningStreak"], 1);
    EXPECT_EQ(program.stored()[u"lastLearnedDay"], u"2026-03-02"_s);
    lesson.complete();
    EXPECT_EQ(lesson.streak(), 1);
    EXPECT_EQ(changes.size(), 1);
}

TEST(DailyLesson, BeginsItsDayAtMidnightInUtc)
{
    const LocalTimeZone zone("JST-9");
    Program program;
    DailyLesson lesson(program.model(), program.defaults());
    program.now = utc(2, 23, 59, 59);
    lesson.complete();
    EXPECT_TRUE(lesson.isComplete());
    program.now = utc(3, 0);
    EXPECT_FALSE(lesson.isComplete());
    lesson.complete();
    EXPECT_EQ(lesson.streak(), 2);
    // The same moment by another clock.
    program.now = utc(3, 0).toTimeZone(QTimeZone(-8 * 3600));
    EXPECT_TRUE(lesson.isComplete());
}

TEST(DailyLesson, ForgivesMissedDaysAndClocksThatGoBack)
{
    Program program;
    DailyLesson lesson(program.model(), program.defaults());
    for (const int day : {2, 9, 8, 9}) {
        program.now = utc(day, 12);
        lesson.complete();
    }
    EXPECT_EQ(lesson.streak(), 4);
}

TEST(DailyLesson, IsKeptOverARestart)
{
    Program program;
    program.now = utc(2, 8);
    DailyLesson(program.model(), program.defaults()).complete();
    program.restart();
    const DailyLesson lesson(program.model(), program.defaults());
    EXPECT_EQ(lesson.streak(), 1);
    EXPECT_TRUE(lesson.isComplete());
}

TEST(DailyLesson, TakesWhateverIsStored)
{
    Program program({.stored = {{u"learningStreak"_s, u"many"_s}, {u"lastLearnedDay"_s, 7}}});
    DailyLesson lesson(program.model(), program.defaults());
    EXPECT_EQ(lesson.streak(), 0);
    EXPECT_FALSE(lesson.isComplete());
    program.defaults().setInteger("learningStreak"_L1, std::numeric_limits<qint64>::max());
    lesson.complete();
    EXPECT_EQ(lesson.streak(), std::numeric_limits<qint64>::max());
}

TEST(DailyLesson, KnowsWhenTheNextDayBegins)
{
    const LocalTimeZone zone("JST-9");
    Program program;
    const DailyLesson lesson(program.model(), program.defaults());
    const auto next = [&](const QDateTime &now) {
        program.now = now;
        return now.addMSecs(lesson.millisecondsToNextDay());
    };
    // Midnight in Japan is at 15 hours UTC.
    EXPECT_EQ(next(utc(2, 0)), utc(2, 15));
    EXPECT_EQ(next(utc(2, 14, 59, 59)), utc(2, 15));
    EXPECT_EQ(next(utc(2, 15)), utc(3, 0));
    EXPECT_EQ(next(utc(2, 23, 59, 59)), utc(3, 0));
}

} // namespace keyvora
