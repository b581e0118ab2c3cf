// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"
#include "unit/model/Program.h"

#include <QSignalSpy>

#include <gtest/gtest.h>
#include <limits>

namespace keyvora {

TEST(AppModelLearning, ChoosesTheShortcutOfToday)
{
    Program program(
        {.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s), makeShortcut(u"custom-2"_s)})});
    EXPECT_EQ(program.model().dailyShortcut().id, u"copy"_s);
    // 114 shortcuts of the catalog come before the user's own.
    program.now = QDateTime(QDate(2026, 4, 25), QTime(0, 0));
    EXPECT_EQ(program.model().dailyShortcut().id, u"custom-1"_s);
    program.now = QDateTime(QDate(2026, 4, 27), QTime(0, 0));
    EXPECT_EQ(program.model().dailyShortcut().id, u"copy"_s);
}

TEST(AppModelLearning, RecordsAnswers)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::practiceStatsChanged);
    program.model().recordPracticeResult(u"copy"_s, false);
    EXPECT_EQ(program.model().practiceStats().value(u"copy"_s), (PracticeStat{1, 1}));
    program.model().recordPracticeResult(u"paste"_s, true);
    EXPECT_EQ(program.model().practiceStats().value(u"paste"_s), (PracticeStat{1, 0}));
    program.model().recordPracticeResult(u"copy"_s, true);
    EXPECT_EQ(program.model().practiceStats().value(u"copy"_s), (PracticeStat{2, 1}));
    EXPECT_EQ(changes.size(), 3);
    const QJsonObject copy{{u"seen"_s, 2}, {u"wrong"_s, 1}};
    const QJsonObject paste{{u"seen"_s, 1}, {u"wrong"_s, 0}};
    EXPECT_EQ(program.stored()[u"practiceStats"].toObject(),
              (QJsonObject{{u"copy"_s, copy}, {u"paste"_s, paste}}));
    program.restart();
    EXPECT_EQ(program.model().practiceStats(),
              (QHash<QString, PracticeStat>{{u"copy"_s, {2, 1}}, {u"paste"_s, {1, 0}}}));
}

TEST(AppModelLearning, CountsNoFurtherThanThereAreNumbers)
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const QJsonObject stat{{u"seen"_s, most}, {u"wrong"_s, most}};
    Program program({.stored = {{u"practiceStats"_s, QJsonObject{{u"copy"_s, stat}}}}});
    program.model().recordPracticeResult(u"copy"_s, false);
    EXPECT_EQ(program.model().practiceStats().value(u"copy"_s), (PracticeStat{most, most}));
}

TEST(AppModelLearning, DrawsByWhatWasRecorded)
{
    Program program;
    EXPECT_EQ(idsOf(program.model().weightedPracticeItems(2)), (QStringList{u"copy"_s, u"paste"_s}));
    program.model().recordPracticeResult(u"copy"_s, true);
    program.model().recordPracticeResult(u"undo"_s, false);
    EXPECT_EQ(idsOf(program.model().weightedPracticeItems(2)), (QStringList{u"undo"_s, u"paste"_s}));
}

} // namespace keyvora
