// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/PracticeSession.h"

#include "unit/model/Program.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

using Answer = PracticeSession::Answer;

/// Command with a letter.
KeyPress command(const QString &letter)
{
    return {.command = true, .plain = letter, .typed = letter};
}

/// Answers the current task.
void answer(PracticeSession &session, bool correctly)
{
    KeyPress press{.plain = u"F35"_s, .typed = u"F35"_s};
    if (correctly) {
        const QStringList keys = session.keys();
        const auto holds = [&](const QString &modifier) {
            return keys.contains(modifier);
        };
        press = {.control = holds(u"⌃"_s),
                 .option = holds(u"⌥"_s),
                 .shift = holds(u"⇧"_s),
                 .command = holds(u"⌘"_s),
                 .plain = keys.constLast(),
                 .typed = keys.constLast()};
    }
    session.check(press);
}

} // namespace

TEST(PracticeSession, BeginsWithARoundOfEight)
{
    Program program;
    const PracticeSession session(program.model());
    EXPECT_EQ(session.taskCount(), 8);
    EXPECT_EQ(session.taskNumber(), 1);
    EXPECT_EQ(session.score(), 0);
    EXPECT_EQ(session.title(), u"Copy"_s);
    EXPECT_EQ(session.answer(), Answer::Unanswered);
    EXPECT_FALSE(session.isLastTask());
}

TEST(PracticeSession, CountsACorrectAnswer)
{
    Program program;
    PracticeSession session(program.model());
    const QSignalSpy answers(&session, &PracticeSession::answerChanged);
    const QSignalSpy scores(&session, &PracticeSession::scoreChanged);
    session.check(command(u"C"_s));
    EXPECT_EQ(session.answer(), Answer::Correct);
    EXPECT_EQ(session.capturedKeys(), (QStringList{u"⌘"_s, u"C"_s}));
    EXPECT_EQ(session.score(), 1);
    EXPECT_TRUE(program.model().practiceAnswered());
    EXPECT_EQ(program.model().practiceStats().value(u"copy"_s), (PracticeStat{1, 0}));
    EXPECT_EQ(answers.size(), 1);
    EXPECT_EQ(scores.size(), 1);
}

TEST(PracticeSession, RemembersAWrongAnswer)
{
    Program program;
    PracticeSession session(program.model());
    session.check(command(u"X"_s));
    EXPECT_EQ(session.answer(), Answer::Wrong);
    EXPECT_EQ(session.capturedKeys(), (QStringList{u"⌘"_s, u"X"_s}));
    EXPECT_EQ(session.keys(), (QStringList{u"⌘"_s, u"C"_s}));
    EXPECT_EQ(session.score(), 0);
    EXPECT_EQ(program.model().practiceStats().value(u"copy"_s), (PracticeStat{1, 1}));
}

TEST(PracticeSession, TakesTheFirstAnswerAlone)
{
    Program program;
    PracticeSession session(program.model());
    session.check(command(u"X"_s));
    session.check(command(u"C"_s));
    EXPECT_EQ(session.answer(), Answer::Wrong);
    EXPECT_EQ(session.capturedKeys(), (QStringList{u"⌘"_s, u"X"_s}));
    EXPECT_EQ(session.score(), 0);
    EXPECT_EQ(program.model().practiceStats().value(u"copy"_s), (PracticeStat{1, 1}));
}

TEST(PracticeSession, GoesFromTaskToTask)
{
    Program program;
    PracticeSession session(program.model());
    session.check(command(u"C"_s));
    session.next();
    EXPECT_EQ(session.taskNumber(), 2);
    EXPECT_EQ(session.title(), u"Paste"_s);
    EXPECT_EQ(session.answer(), Answer::Unanswered);
    EXPECT_TRUE(session.capturedKeys().isEmpty());
    EXPECT_FALSE(program.model().practiceAnswered());
    EXPECT_EQ(session.score(), 1);
}

TEST(PracticeSession, GoesOnWithReturnAfterAnAnswerAlone)
{
    Program program;
    PracticeSession session(program.model());
    const KeyPress enter{.plain = u"Return"_s, .typed = u"Return"_s};
    session.take(enter);
    EXPECT_EQ(session.answer(), Answer::Wrong);
    EXPECT_EQ(session.taskNumber(), 1);
    session.take(command(u"C"_s));
    session.take(command(u"Return"_s));
    EXPECT_EQ(session.taskNumber(), 1);
    session.take(enter);
    EXPECT_EQ(session.taskNumber(), 2);
    EXPECT_EQ(session.answer(), Answer::Unanswered);
}

TEST(PracticeSession, MaySkipATask)
{
    Program program;
    PracticeSession session(program.model());
    session.next();
    EXPECT_EQ(session.taskNumber(), 2);
    EXPECT_TRUE(program.model().practiceStats().isEmpty());
}

TEST(PracticeSession, EndsARoundAndDrawsByItsAnswers)
{
    Program program;
    PracticeSession session(program.model());
    for (int task = 1; task <= 8; ++task) {
        EXPECT_EQ(session.taskNumber(), task);
        EXPECT_EQ(session.isLastTask(), task == 8);
        answer(session, task % 2 == 0);
        EXPECT_EQ(session.score(), task / 2);
        if (task < 8)
            session.next();
    }
    EXPECT_EQ(session.score(), 4);
    session.next();
    EXPECT_EQ(session.taskNumber(), 1);
    EXPECT_EQ(session.score(), 0);
    EXPECT_EQ(session.answer(), Answer::Unanswered);
    // What was wrong weighs five, what was never asked three, what was right one.
    const QSet<QString> wrong{u"Copy"_s, u"Undo"_s, u"Save"_s, u"Find"_s};
    QSet<QString> first;
    for (int task = 1; task <= 4; ++task, session.next())
        first.insert(session.title());
    EXPECT_EQ(first, wrong);
    for (int task = 5; task <= 8; ++task, session.next())
        EXPECT_FALSE(program.model().practiceStats().contains(session.current().id));
}

TEST(PracticeSession, StartsOver)
{
    Program program;
    PracticeSession session(program.model());
    session.check(command(u"C"_s));
    session.next();
    session.check(command(u"X"_s));
    session.startOver();
    EXPECT_EQ(session.taskNumber(), 1);
    EXPECT_EQ(session.score(), 0);
    EXPECT_EQ(session.answer(), Answer::Unanswered);
    EXPECT_EQ(session.title(), u"Paste"_s);
}

TEST(PracticeSession, TellsOfANewRoundWhenItIsThere)
{
    Program program;
    PracticeSession session(program.model());
    session.check(command(u"C"_s));
    session.next();
    QSet<QString> told;
    QObject::connect(&session, &PracticeSession::taskChanged, [&] { told.insert(session.title()); });
    session.startOver();
    EXPECT_EQ(told, QSet<QString>{u"Paste"_s});
}

TEST(PracticeSession, KeepsItsRoundInTheOtherLanguage)
{
    Program program({.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"J"_s})})});
    PracticeSession session(program.model());
    session.check(command(u"C"_s));
    session.next();
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(session.title(), u"Vložit"_s);
    EXPECT_EQ(session.taskNumber(), 2);
    EXPECT_EQ(session.score(), 1);
}

TEST(PracticeSession, TellsShortcutsOfOneIdApartInTheOtherLanguage)
{
    const QList<Shortcut> own{makeShortcut(u"copy"_s, u"Mine"_s, {u"⌘"_s, u"J"_s}),
                              makeShortcut(u"own"_s, u"First"_s, {u"⌘"_s, u"1"_s}),
                              makeShortcut(u"own"_s, u"Second"_s, {u"⌘"_s, u"1"_s})};
    QJsonObject stored = storedCustom(own);
    const QJsonObject hard{{u"seen"_s, 1}, {u"wrong"_s, 1}};
    stored[u"practiceStats"_s] = QJsonObject{{u"copy"_s, hard}, {u"own"_s, hard}};
    Program program({.stored = stored});
    PracticeSession session(program.model());
    program.localization().setLanguage(AppLanguage::Czech);
    QStringList titles;
    for (int task = 0; task < 4; ++task) {
        titles.append(session.title());
        session.next();
    }
    EXPECT_EQ(titles, (QStringList{u"Kopírovat"_s, u"Mine"_s, u"First"_s, u"Second"_s}));
}

TEST(PracticeSession, StillAsksWhatWasDeletedMeanwhile)
{
    QJsonObject stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"J"_s})});
    stored[u"practiceStats"_s] = QJsonObject{{u"custom-1"_s, QJsonObject{{u"seen"_s, 1}, {u"wrong"_s, 1}}}};
    Program program({.stored = stored});
    PracticeSession session(program.model());
    program.model().deleteCustom(makeShortcut(u"custom-1"_s));
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(session.title(), u"Own"_s);
    session.check(command(u"J"_s));
    EXPECT_EQ(session.answer(), Answer::Correct);
    program.localization().setLanguage(AppLanguage::English);
}

} // namespace keyvora
