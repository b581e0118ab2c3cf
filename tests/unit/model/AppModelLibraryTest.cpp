// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"
#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

using Kind = SidebarSelection::Kind;
using Category = Shortcut::Category;

QStringList filteredIds(Program &program)
{
    return idsOf(program.model().filtered());
}

QStringList idsFor(Program &program, const QString &search)
{
    program.model().setSearch(search);
    return filteredIds(program);
}

Program::Start inCzech()
{
    return {.languages = {u"cs-CZ"_s}, .locale = QLocale(QLocale::Czech, QLocale::Czechia)};
}

/// A program whose library ends with one own shortcut.
Program::Start withOwn(const Shortcut &shortcut)
{
    return {.stored = storedCustom({shortcut})};
}

} // namespace

TEST(Filtered, IsEverythingAtFirst)
{
    Program program(withOwn(makeShortcut(u"custom-1"_s, u"Own"_s)));
    EXPECT_EQ(program.model().filtered(), program.model().allShortcuts());
    EXPECT_EQ(program.model().filtered().size(), 115);
}

TEST(Filtered, IsEverythingOnTheScreensOfTheirOwn)
{
    Program program;
    for (const Kind kind :
         {Kind::all, Kind::keyboard, Kind::sticker, Kind::firstAid, Kind::daily, Kind::practice}) {
        program.model().setSelection({kind});
        EXPECT_EQ(program.model().filtered(), program.model().allShortcuts());
    }
}

TEST(Filtered, NarrowsTheScreensOfTheirOwnLikeEverything)
{
    Program program;
    const QStringList expected = idsFor(program, u"undo"_s);
    ASSERT_FALSE(expected.isEmpty());
    program.model().setSelection({Kind::practice});
    EXPECT_EQ(filteredIds(program), expected);
}

TEST(Filtered, HoldsTheFavoritesInTheOrderOfTheLibrary)
{
    Program program(withOwn(makeShortcut(u"custom-1"_s, u"Own"_s)));
    program.model().setSelection({Kind::favorites});
    EXPECT_EQ(filteredIds(program), (QStringList{u"copy"_s, u"paste"_s, u"spotlight"_s, u"shot-area"_s}));
    program.model().toggleFavorite(u"custom-1"_s);
    program.model().toggleFavorite(u"paste"_s);
    EXPECT_EQ(filteredIds(program), (QStringList{u"copy"_s, u"spotlight"_s, u"shot-area"_s, u"custom-1"_s}));
}

TEST(Filtered, IsEmptyForNoFavorites)
{
    Program program({.stored = {{u"favorites"_s, QJsonArray()}}});
    program.model().setSelection({Kind::favorites});
    EXPECT_TRUE(program.model().filtered().isEmpty());
}

TEST(Filtered, HoldsTheShortcutsOfACategory)
{
    Program program(withOwn(makeShortcut(u"custom-1"_s, u"Own"_s, {}, {}, {}, Category::snimky)));
    program.model().setSelection({Kind::category, Category::snimky});
    EXPECT_EQ(filteredIds(program), (QStringList{u"shot-full"_s, u"shot-area"_s, u"shot-tools"_s,
                                                 u"shot-clipboard"_s, u"custom-1"_s}));
    const QList<qsizetype> sizes{12, 17, 15, 18, 5, 11, 37};
    for (size_t i = 0; i < allCategories.size(); ++i) {
        program.model().setSelection({Kind::category, allCategories[i]});
        EXPECT_EQ(program.model().filtered().size(), sizes.at(static_cast<qsizetype>(i)));
    }
}

TEST(Filtered, HoldsOnlyShortcutsWithAModifierThatIsOn)
{
    Program program;
    program.model().toggleModifier(ModifierFilter::fn);
    EXPECT_EQ(filteredIds(program), QStringList{u"desktop"_s});
}

TEST(Filtered, NeedsEveryModifierThatIsOn)
{
    Program program;
    for (const ModifierFilter filter :
         {ModifierFilter::command, ModifierFilter::control, ModifierFilter::shift})
        program.model().toggleModifier(filter);
    EXPECT_EQ(filteredIds(program),
              (QStringList{u"shot-clipboard"_s, u"notion-move-up"_s, u"notion-move-down"_s}));
}

TEST(Filtered, TakesAModifierForAWholeToken)
{
    Program program(withOwn(makeShortcut(u"custom-1"_s, u"Own"_s, {u"Fn F11"_s, u"fn"_s, u"F"_s})));
    program.model().toggleModifier(ModifierFilter::fn);
    EXPECT_EQ(filteredIds(program), QStringList{u"desktop"_s});
}

TEST(Filtered, TakesASearchOfWhiteSpaceForNone)
{
    Program program;
    for (const auto &search : {u" "_s, u" \n \t "_s, u"\u00A0\u2003\u2028"_s})
        EXPECT_EQ(idsFor(program, search).size(), 114);
}

TEST(Filtered, LooksForTheSearchWithoutItsMargins)
{
    Program program;
    EXPECT_EQ(idsFor(program, u" \n select all \t"_s), idsFor(program, u"select all"_s));
    EXPECT_TRUE(filteredIds(program).contains(u"select-all"_s));
}

TEST(Filtered, MindsTheSpacesInsideTheSearch)
{
    Program program;
    EXPECT_TRUE(idsFor(program, u"select  all"_s).isEmpty());
}

TEST(Filtered, SearchesTitlesWithoutRegardToCase)
{
    Program program;
    EXPECT_TRUE(idsFor(program, u"MISSION con"_s).contains(u"mission-control"_s));
}

TEST(Filtered, SearchesDescriptions)
{
    Program program(withOwn(makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s}, {}, u"Feeds the Quokka."_s)));
    EXPECT_EQ(idsFor(program, u"quokka"_s), QStringList{u"custom-1"_s});
}

TEST(Filtered, SearchesTheKeysWrittenOneAfterAnother)
{
    Program program;
    EXPECT_EQ(idsFor(program, u"⇧⌘Z"_s), QStringList{u"redo"_s});
    const QStringList copying = idsFor(program, u"⌘C"_s);
    EXPECT_TRUE(copying.contains(u"copy"_s));
    EXPECT_TRUE(copying.contains(u"computer"_s));
    EXPECT_EQ(idsFor(program, u"⌘c"_s), copying);
    EXPECT_TRUE(idsFor(program, u"⌘ C"_s).isEmpty());
    EXPECT_EQ(idsFor(program, u"fnf11"_s), QStringList{u"desktop"_s});
}

TEST(Filtered, KnowsTheMinusKeyFromTheHyphen)
{
    Program program;
    EXPECT_EQ(idsFor(program, u"⌘−"_s), QStringList{u"zoom-out"_s});
    EXPECT_TRUE(idsFor(program, u"⌘-"_s).isEmpty());
}

TEST(Filtered, DoesNotSearchIdsApplicationsAndCategories)
{
    Program program(
        withOwn(makeShortcut(u"quokka"_s, u"Own"_s, {u"⌘"_s}, {u"Wombat"_s}, u"Detail."_s, Category::profi)));
    for (const auto &search : {u"quokka"_s, u"Wombat"_s, u"Pro Tools"_s, u"Profesionální"_s, u"profi"_s})
        EXPECT_TRUE(idsFor(program, search).isEmpty()) << search.toStdString();
}

TEST(Filtered, DoesNotSearchAcrossTheFields)
{
    Program program(withOwn(makeShortcut(u"custom-1"_s, u"Quok"_s, {u"x"_s}, {}, u"ka"_s)));
    EXPECT_TRUE(idsFor(program, u"quokka"_s).isEmpty());
}

TEST(Filtered, SearchesTheLanguageThatIsShown)
{
    Program program(inCzech());
    EXPECT_TRUE(idsFor(program, u"kopír"_s).contains(u"copy"_s));
    EXPECT_TRUE(idsFor(program, u"KOPÍR"_s).contains(u"copy"_s));
    EXPECT_FALSE(idsFor(program, u"Select All"_s).contains(u"select-all"_s));
    program.localization().setLanguage(AppLanguage::English);
    EXPECT_FALSE(idsFor(program, u"kopír"_s).contains(u"copy"_s));
    EXPECT_TRUE(idsFor(program, u"Select All"_s).contains(u"select-all"_s));
}

TEST(Filtered, MindsDiacriticsButNotHowTheyAreEncoded)
{
    Program program(inCzech());
    EXPECT_FALSE(idsFor(program, u"kopir"_s).contains(u"copy"_s));
    const QString composed = u"přiblížit"_s.normalized(QString::NormalizationForm_C);
    const QString decomposed = composed.normalized(QString::NormalizationForm_D);
    EXPECT_TRUE(idsFor(program, composed).contains(u"zoom-in"_s));
    EXPECT_EQ(idsFor(program, decomposed), idsFor(program, composed));
}

TEST(Filtered, FollowsTheCaseRulesOfTheLocale)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"KIRMIZI"_s);
    Program turkish({.stored = storedCustom({own}), .locale = QLocale(QLocale::Turkish, QLocale::Turkey)});
    EXPECT_EQ(idsFor(turkish, u"kırmızı"_s), QStringList{u"custom-1"_s});
    turkish.end();
    Program english(withOwn(own));
    EXPECT_EQ(idsFor(english, u"kirmizi"_s), QStringList{u"custom-1"_s});
}

TEST(Filtered, PassesAllThreeFiltersAtOnce)
{
    Program program;
    program.model().setSelection({Kind::category, Category::finder});
    program.model().toggleModifier(ModifierFilter::shift);
    EXPECT_EQ(idsFor(program, u"trash"_s), QStringList{u"empty-trash"_s});
    program.model().toggleModifier(ModifierFilter::option);
    EXPECT_TRUE(filteredIds(program).isEmpty());
}

TEST(Filtered, ListsShortcutsThatShareAnIdEachByItself)
{
    Program program(withOwn(makeShortcut(u"copy"_s, u"Copy again"_s)));
    program.model().setSelection({Kind::favorites});
    EXPECT_EQ(filteredIds(program),
              (QStringList{u"copy"_s, u"paste"_s, u"spotlight"_s, u"shot-area"_s, u"copy"_s}));
}

TEST(LibraryState, TellsOnlyOfRealChanges)
{
    Program program;
    AppModel &model = program.model();
    const QSignalSpy searches(&model, &AppModel::searchChanged);
    const QSignalSpy selections(&model, &AppModel::selectionChanged);
    model.setSearch(u"a"_s);
    model.setSearch(u"a"_s);
    EXPECT_EQ(searches.size(), 1);
    model.setSelection({Kind::category, Category::okna});
    model.setSelection({Kind::category, Category::okna});
    EXPECT_EQ(selections.size(), 1);
    model.setSelection({Kind::category, Category::profi});
    EXPECT_EQ(selections.size(), 2);
}

TEST(LibraryState, IsNotStored)
{
    Program program;
    program.model().setSearch(u"a"_s);
    program.model().setSelection({Kind::favorites});
    program.model().toggleModifier(ModifierFilter::fn);
    EXPECT_TRUE(program.stored().isEmpty());
    program.restart();
    EXPECT_EQ(program.model().search(), QString());
    EXPECT_EQ(program.model().selection(), SidebarSelection());
    EXPECT_TRUE(program.model().modifierFilters().isEmpty());
}

TEST(ToggleModifier, SwitchesOnAndOffWithOneSignalEach)
{
    Program program;
    AppModel &model = program.model();
    const QSignalSpy changes(&model, &AppModel::modifierFiltersChanged);
    model.toggleModifier(ModifierFilter::shift);
    EXPECT_EQ(model.modifierFilters(), QSet<ModifierFilter>{ModifierFilter::shift});
    EXPECT_EQ(changes.size(), 1);
    model.toggleModifier(ModifierFilter::shift);
    EXPECT_TRUE(model.modifierFilters().isEmpty());
    EXPECT_EQ(changes.size(), 2);
}

TEST(ToggleModifier, UnderstandsTokens)
{
    Program program;
    AppModel &model = program.model();
    model.toggleModifierToken(u"Fn"_s);
    model.toggleModifierToken(u"⌘"_s);
    EXPECT_EQ(model.modifierFilters(), (QSet<ModifierFilter>{ModifierFilter::fn, ModifierFilter::command}));
    const QSignalSpy changes(&model, &AppModel::modifierFiltersChanged);
    model.toggleModifierToken(u"fn"_s);
    model.toggleModifierToken(QString());
    EXPECT_TRUE(changes.isEmpty());
}

TEST(ModifierTokens, ComeInTheOrderOfDisplay)
{
    Program program;
    for (const auto &token : {u"Fn"_s, u"⇧"_s, u"⌘"_s, u"⌃"_s, u"⌥"_s})
        program.model().toggleModifierToken(token);
    EXPECT_EQ(program.model().modifierTokens(), (QStringList{u"⌘"_s, u"⌥"_s, u"⇧"_s, u"⌃"_s, u"Fn"_s}));
}

TEST(ClearModifiers, TellsOnlyOfARealChange)
{
    Program program;
    AppModel &model = program.model();
    const QSignalSpy changes(&model, &AppModel::modifierFiltersChanged);
    model.clearModifiers();
    EXPECT_TRUE(changes.isEmpty());
    model.toggleModifier(ModifierFilter::fn);
    model.toggleModifier(ModifierFilter::shift);
    model.clearModifiers();
    EXPECT_TRUE(model.modifierFilters().isEmpty());
    EXPECT_EQ(changes.size(), 3);
}

TEST(FilteredModel, IsMadeOnce)
{
    Program program;
    EXPECT_EQ(program.model().filteredModel(), program.model().filteredModel());
    EXPECT_EQ(program.model().contextualModel(), program.model().contextualModel());
    EXPECT_NE(program.model().filteredModel(), program.model().contextualModel());
}

TEST(FilteredModel, FollowsEverythingThatTheListDependsOn)
{
    Program program;
    AppModel &model = program.model();
    ShortcutListModel &list = *model.filteredModel();
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);
    const auto expectCurrent = [&] {
        EXPECT_EQ(rowsOf(list), idsOf(model.filtered()));
    };
    expectCurrent();
    model.setSearch(u"select"_s);
    expectCurrent();
    model.toggleModifier(ModifierFilter::shift);
    expectCurrent();
    model.addCustom(u"Select mine"_s, {u"⇧"_s, u"Q"_s}, Category::text, {}, {});
    expectCurrent();
    EXPECT_EQ(rowsOf(list).last(), model.customShortcuts().first().id);
    program.localization().setLanguage(AppLanguage::Czech);
    expectCurrent();
    model.setSearch(QString());
    expectCurrent();
    model.clearModifiers();
    expectCurrent();
    model.deleteCustom(model.customShortcuts().first());
    expectCurrent();
    model.setSelection({Kind::favorites});
    expectCurrent();
    model.toggleFavorite(u"paste"_s);
    expectCurrent();
    model.toggleFavorite(u"redo"_s);
    expectCurrent();
    model.setSelection({Kind::category, Category::profi});
    expectCurrent();
}

TEST(FilteredModel, RemovesAtAKeystrokeOnlyWhatNoLongerPasses)
{
    Program program;
    AppModel &model = program.model();
    ShortcutListModel &list = *model.filteredModel();
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);
    const QStringList before = rowsOf(list);
    QStringList removed;
    QObject::connect(&list, &QAbstractItemModel::rowsAboutToBeRemoved, &list,
                     [&](const QModelIndex &, int first, int last) {
                         removed += rowsOf(list).mid(first, last - first + 1);
                     });
    const QSignalSpy inserted(&list, &QAbstractItemModel::rowsInserted);
    const QSignalSpy moved(&list, &QAbstractItemModel::rowsMoved);
    const QSignalSpy changed(&list, &QAbstractItemModel::dataChanged);
    const QSignalSpy resets(&list, &QAbstractItemModel::modelReset);

    model.setSearch(u"w"_s);
    const QStringList after = rowsOf(list);
    ASSERT_FALSE(after.isEmpty());
    ASSERT_LT(after.size(), before.size());
    EXPECT_EQ(QSet<QString>(removed.begin(), removed.end()),
              QSet<QString>(before.begin(), before.end()) - QSet<QString>(after.begin(), after.end()));
    EXPECT_EQ(removed.size(), before.size() - after.size());
    EXPECT_TRUE(inserted.isEmpty());
    EXPECT_TRUE(moved.isEmpty());
    EXPECT_TRUE(changed.isEmpty());
    EXPECT_TRUE(resets.isEmpty());
}

TEST(FilteredModel, InsertsAtAKeystrokeOnlyWhatPassesAgain)
{
    Program program;
    AppModel &model = program.model();
    ShortcutListModel &list = *model.filteredModel();
    model.setSearch(u"wi"_s);
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);
    const QStringList before = rowsOf(list);
    qsizetype insertedCount = 0;
    QObject::connect(&list, &QAbstractItemModel::rowsInserted, &list,
                     [&](const QModelIndex &, int first, int last) { insertedCount += last - first + 1; });
    const QSignalSpy removed(&list, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy moved(&list, &QAbstractItemModel::rowsMoved);
    const QSignalSpy changed(&list, &QAbstractItemModel::dataChanged);
    const QSignalSpy resets(&list, &QAbstractItemModel::modelReset);

    model.setSearch(u"w"_s);
    ASSERT_GT(rowsOf(list).size(), before.size());
    EXPECT_EQ(insertedCount, rowsOf(list).size() - before.size());
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_TRUE(moved.isEmpty());
    EXPECT_TRUE(changed.isEmpty());
    EXPECT_TRUE(resets.isEmpty());
}

TEST(FilteredModel, KeepsItsRowsWhenTheLanguageChanges)
{
    Program program;
    ShortcutListModel &list = *program.model().filteredModel();
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);
    const QPersistentModelIndex copy = list.index(list.rowOf(u"copy"_s));
    const QSignalSpy removed(&list, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(&list, &QAbstractItemModel::rowsInserted);
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_TRUE(inserted.isEmpty());
    EXPECT_EQ(list.data(copy, ShortcutListModel::TitleRole), QVariant(u"Kopírovat"_s));
    EXPECT_EQ(list.data(copy, ShortcutListModel::HeaderTextRole), QVariant(u"Základy"_s));
}

TEST(FilteredModel, ShowsWhatIsAFavorite)
{
    Program program;
    ShortcutListModel &list = *program.model().filteredModel();
    const auto isFavorite = [&](const QString &id) {
        return list.data(list.index(list.rowOf(id)), ShortcutListModel::IsFavoriteRole).toBool();
    };
    EXPECT_TRUE(isFavorite(u"copy"_s));
    EXPECT_FALSE(isFavorite(u"redo"_s));
    const QSignalSpy changed(&list, &QAbstractItemModel::dataChanged);
    program.model().toggleFavorite(u"redo"_s);
    EXPECT_TRUE(isFavorite(u"redo"_s));
    ASSERT_EQ(changed.size(), 1);
    EXPECT_EQ(changed.at(0).at(0).toModelIndex().row(), list.rowOf(u"redo"_s));
}

} // namespace keyvora
