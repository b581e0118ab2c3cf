// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"
#include "unit/model/Program.h"

#include <QSignalSpy>

#include <gtest/gtest.h>
#include <limits>

namespace keyvora {

namespace {

Program::Start learning()
{
    return {.stored = {{u"learningMode"_s, true}}};
}

/// Learning mode over a library that ends with these own shortcuts.
Program::Start learningWith(const QList<Shortcut> &own, const QLocale &locale = QLocale(QLocale::Czech))
{
    QJsonObject stored = storedCustom(own);
    stored[u"learningMode"_s] = true;
    return {.stored = stored, .locale = locale};
}

/// The id of the shortcut that a menu command was taken for.
std::optional<QString> suggestionFor(Program &program, const QString &title)
{
    program.model().recordMouseAction(title);
    const auto &suggestion = program.model().latestSuggestion();
    return suggestion ? std::optional(suggestion->id) : std::nullopt;
}

} // namespace

TEST(RecordMouseAction, CountsAndStoresAUse)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::usageCountsChanged);
    program.model().recordMouseAction(u"Eject Disk"_s);
    program.model().recordMouseAction(u"Eject Disk"_s);
    program.model().recordMouseAction(u"Log Out"_s);
    const QHash<QString, qint64> expected{{u"eject"_s, 2}, {u"logout"_s, 1}};
    EXPECT_EQ(program.model().usageCounts(), expected);
    EXPECT_EQ(changes.size(), 3);
    EXPECT_EQ(program.stored()[u"usageCounts"_s], QJsonValue(QJsonObject{{u"eject"_s, 2}, {u"logout"_s, 1}}));
    program.restart();
    EXPECT_EQ(program.model().usageCounts(), expected);
}

TEST(RecordMouseAction, ArrivesThroughTheObserver)
{
    Program program;
    program.menuUse.handler(u"Eject Disk"_s);
    EXPECT_EQ(program.model().usageCounts().value(u"eject"_s), 1);
}

TEST(RecordMouseAction, AddsToStoredCounts)
{
    Program program({.stored = {{u"usageCounts"_s, QJsonObject{{u"eject"_s, 41}, {u"gone"_s, 5}}}}});
    program.model().recordMouseAction(u"Eject Disk"_s);
    EXPECT_EQ(program.stored()[u"usageCounts"_s], QJsonValue(QJsonObject{{u"eject"_s, 42}, {u"gone"_s, 5}}));
}

TEST(RecordMouseAction, StopsCountingAtTheLargestNumber)
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    Program program({.stored = {{u"usageCounts"_s, QJsonObject{{u"eject"_s, largest}}}}});
    EXPECT_EQ(suggestionFor(program, u"Eject Disk"_s), u"eject"_s);
    EXPECT_EQ(program.model().usageCounts().value(u"eject"_s), largest);
}

TEST(RecordMouseAction, SuggestsFromTheSecondTimeOn)
{
    Program program;
    EXPECT_EQ(suggestionFor(program, u"Eject Disk"_s), std::nullopt);
    EXPECT_EQ(program.model().latestSuggestionReason(), QString());
    EXPECT_EQ(suggestionFor(program, u"Log Out"_s), std::nullopt);
    EXPECT_EQ(suggestionFor(program, u"Eject Disk"_s), u"eject"_s);
    EXPECT_EQ(program.model().latestSuggestionReason(),
              u"You used “Eject Disk” with the mouse. Try the faster keyboard shortcut next time."_s);
}

TEST(RecordMouseAction, SuggestsAtOnceInLearningMode)
{
    Program program(learning());
    EXPECT_EQ(suggestionFor(program, u"Eject Disk"_s), u"eject"_s);
}

TEST(RecordMouseAction, SuggestsTheWholeShortcutInTheCurrentLanguage)
{
    Program program({.stored = {{u"learningMode"_s, true}}, .languages = {u"cs-CZ"_s}});
    program.model().recordMouseAction(u"Vysunout disk…"_s);
    ASSERT_TRUE(program.model().latestSuggestion().has_value());
    EXPECT_EQ(program.model().latestSuggestion()->title, u"Vysunout disk"_s);
    EXPECT_EQ(program.model().latestSuggestionReason(),
              u"Položku „Vysunout disk…“ jste použili myší. Příště to zkuste rychleji klávesami."_s);
}

TEST(RecordMouseAction, KeepsTheSentenceInTheLanguageInWhichItWasMade)
{
    Program program(learning());
    program.model().recordMouseAction(u"Eject Disk"_s);
    const QString sentence = program.model().latestSuggestionReason();
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(program.model().latestSuggestionReason(), sentence);
    EXPECT_EQ(program.model().latestSuggestion()->title, u"Eject Disk"_s);
}

TEST(RecordMouseAction, QuotesTheMenuTitleAsItCame)
{
    Program program(learning());
    program.model().recordMouseAction(u"EJECT Disk “%1 %2”"_s);
    EXPECT_EQ(program.model().latestSuggestionReason(),
              u"You used “EJECT Disk “%1 %2”” with the mouse. Try the faster keyboard shortcut next time."_s);
}

TEST(RecordMouseAction, DoesNothingWhileSuggestionsAreOff)
{
    Program program(learning());
    program.model().setSmartSuggestions(false);
    const QJsonObject before = program.stored();
    EXPECT_EQ(suggestionFor(program, u"Eject Disk"_s), std::nullopt);
    EXPECT_TRUE(program.model().usageCounts().isEmpty());
    EXPECT_EQ(program.stored(), before);
}

TEST(RecordMouseAction, DoesNothingForATitleThatMatchesNothing)
{
    Program program(learning());
    const QJsonObject before = program.stored();
    EXPECT_EQ(suggestionFor(program, u"Quokka"_s), std::nullopt);
    EXPECT_TRUE(program.model().usageCounts().isEmpty());
    EXPECT_EQ(program.stored(), before);
}

TEST(RecordMouseAction, DoesNothingForAnEmptyTitle)
{
    Program program(learning());
    EXPECT_EQ(suggestionFor(program, QString()), std::nullopt);
    EXPECT_TRUE(program.model().usageCounts().isEmpty());
}

TEST(RecordMouseAction, IgnoresCaseAndDiacritics)
{
    Program shouted(learningWith({makeShortcut(u"custom-1"_s, u"kvokani tucnaku"_s)}));
    EXPECT_EQ(suggestionFor(shouted, u"KVOKÁNÍ TUČŇÁKŮ"_s), u"custom-1"_s);
    shouted.end();
    Program accented(learningWith({makeShortcut(u"custom-1"_s, u"Kvokání tučňáků"_s)}));
    EXPECT_EQ(suggestionFor(accented, u"kvokani tucnaku"_s), u"custom-1"_s);
}

TEST(RecordMouseAction, FindsTheCatalogWithoutDiacritics)
{
    Program program({.stored = {{u"learningMode"_s, true}}, .languages = {u"cs-CZ"_s}});
    EXPECT_EQ(suggestionFor(program, u"kopirovat"_s), u"copy"_s);
    EXPECT_EQ(suggestionFor(program, u"PŘIBLÍŽIT"_s.normalized(QString::NormalizationForm_D)), u"zoom-in"_s);
}

TEST(RecordMouseAction, MatchesAMenuTitleInsideAShortcutsTitle)
{
    Program program(learning());
    EXPECT_EQ(suggestionFor(program, u"ission Contr"_s), u"mission-control"_s);
}

TEST(RecordMouseAction, MatchesAShortcutsTitleInsideAMenuTitle)
{
    Program program(learning());
    EXPECT_EQ(suggestionFor(program, u"Always Eject Disk Now"_s), u"eject"_s);
    EXPECT_EQ(suggestionFor(program, u"Copy Style"_s), u"copy"_s);
}

TEST(RecordMouseAction, TakesTheFirstMatchOfTheLibraryBeforeABetterOne)
{
    Program program(learningWith({makeShortcut(u"custom-1"_s, u"Copy Style"_s),
                                  makeShortcut(u"custom-2"_s, u"Quokka Style"_s),
                                  makeShortcut(u"custom-3"_s, u"Quokka"_s)}));
    EXPECT_EQ(suggestionFor(program, u"Copy Style"_s), u"copy"_s);
    EXPECT_EQ(suggestionFor(program, u"Quokka"_s), u"custom-2"_s);
}

TEST(RecordMouseAction, FoldsByTheRulesOfTheLocale)
{
    const QList<Shortcut> own{makeShortcut(u"custom-1"_s, u"ĞIĞ"_s)};
    Program turkish(learningWith(own, QLocale(QLocale::Turkish, QLocale::Turkey)));
    EXPECT_EQ(suggestionFor(turkish, u"ğiğ"_s), std::nullopt);
    EXPECT_EQ(suggestionFor(turkish, u"ğığ"_s), u"custom-1"_s);
    turkish.end();
    Program english(learningWith(own, QLocale(QLocale::English)));
    EXPECT_EQ(suggestionFor(english, u"ğiğ"_s), u"custom-1"_s);
}

TEST(RecordMouseAction, TellsOfASuggestionOnlyWhenItIsAnother)
{
    Program program(learning());
    AppModel &model = program.model();
    const QSignalSpy suggestions(&model, &AppModel::latestSuggestionChanged);
    const QSignalSpy reasons(&model, &AppModel::latestSuggestionReasonChanged);
    model.recordMouseAction(u"Eject Disk"_s);
    model.recordMouseAction(u"Eject Disk"_s);
    EXPECT_EQ(suggestions.size(), 1);
    EXPECT_EQ(reasons.size(), 1);
    model.recordMouseAction(u"Eject Disk Now"_s);
    EXPECT_EQ(suggestions.size(), 1);
    EXPECT_EQ(reasons.size(), 2);
    EXPECT_TRUE(model.latestSuggestionReason().contains(u"“Eject Disk Now”"_s));
    model.recordMouseAction(u"Log Out"_s);
    EXPECT_EQ(suggestions.size(), 2);
    EXPECT_EQ(reasons.size(), 3);
}

TEST(RecordMouseAction, LeavesTheSuggestionWhenNothingNewIsSuggested)
{
    Program program(learning());
    AppModel &model = program.model();
    model.recordMouseAction(u"Eject Disk"_s);
    model.setLearningMode(false);
    model.recordMouseAction(u"Log Out"_s);
    model.recordMouseAction(u"Quokka"_s);
    model.setSmartSuggestions(false);
    EXPECT_EQ(model.latestSuggestion()->id, u"eject"_s);
}

TEST(RecordMouseAction, HasTheWholeSuggestionBeforeItTells)
{
    Program program(learning());
    AppModel &model = program.model();
    int told = 0;
    QObject::connect(&model, &AppModel::latestSuggestionChanged, &model, [&] {
        ++told;
        EXPECT_TRUE(model.latestSuggestionReason().contains(u"“Eject Disk”"_s));
        EXPECT_EQ(model.usageCounts().value(u"eject"_s), 1);
    });
    model.recordMouseAction(u"Eject Disk"_s);
    EXPECT_EQ(told, 1);
}

} // namespace keyvora
