// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"
#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

QStringList contextualIds(Program &program)
{
    return idsOf(program.model().contextual());
}

Program::Start withCounts(const QJsonObject &counts, const QString &application = u"Mac"_s)
{
    return {.stored = {{u"usageCounts"_s, counts}}, .frontmost = RunningApplication{application, 1}};
}

} // namespace

TEST(Contextual, HoldsTheFirstFourOfTheLibraryForAnUnknownApplication)
{
    Program program({.frontmost = RunningApplication{u"Quokka"_s, 1}});
    EXPECT_EQ(contextualIds(program), (QStringList{u"copy"_s, u"paste"_s, u"undo"_s, u"redo"_s}));
}

TEST(Contextual, HoldsTheMostUsedOfTheLibraryForAnUnknownApplication)
{
    Program program(withCounts({{u"notion-find"_s, 2}, {u"redo"_s, 5}, {u"lock"_s, 2}}));
    EXPECT_EQ(contextualIds(program), (QStringList{u"redo"_s, u"lock"_s, u"notion-find"_s, u"copy"_s}));
}

TEST(Contextual, HoldsTheFirstFourOfTheApplicationInTheOrderOfTheLibrary)
{
    Program program({.frontmost = RunningApplication{u"Finder"_s, 1}});
    EXPECT_EQ(contextualIds(program),
              (QStringList{u"new-folder"_s, u"go-folder"_s, u"trash"_s, u"quick-look"_s}));
}

TEST(Contextual, SortsAllOfTheApplicationBeforeItTakesFour)
{
    Program program(withCounts({{u"empty-trash"_s, 1}, {u"eject"_s, 7}, {u"copy"_s, 99}}, u"Finder"_s));
    EXPECT_EQ(contextualIds(program),
              (QStringList{u"eject"_s, u"empty-trash"_s, u"new-folder"_s, u"go-folder"_s}));
}

TEST(Contextual, KeepsTheOrderOfTheLibraryAmongEqualCounts)
{
    Program program(
        withCounts({{u"rename"_s, 3}, {u"info"_s, 3}, {u"home"_s, 3}, {u"trash"_s, 3}}, u"Finder"_s));
    EXPECT_EQ(contextualIds(program), (QStringList{u"trash"_s, u"home"_s, u"info"_s, u"rename"_s}));
}

TEST(Contextual, HoldsExactlyFourSortedByUse)
{
    Program program(withCounts({{u"notion-move-down"_s, 2}, {u"notion-new-window"_s, 1}}, u"Notion"_s));
    EXPECT_EQ(contextualIds(program), (QStringList{u"notion-move-down"_s, u"notion-new-window"_s,
                                                   u"notion-find"_s, u"notion-move-up"_s}));
}

TEST(Contextual, HoldsFewerWhereTheApplicationHasFewer)
{
    Program program({.frontmost = RunningApplication{u"Firefox"_s, 1}});
    EXPECT_EQ(contextualIds(program), (QStringList{u"address"_s, u"reload"_s, u"bookmark"_s}));
}

TEST(Contextual, KnowsApplicationsByTheirWholeName)
{
    for (const auto &name : {u"finder"_s, u"Find"_s, u"Finder "_s, u"The Finder"_s}) {
        Program program({.frontmost = RunningApplication{name, 1}});
        EXPECT_EQ(contextualIds(program), (QStringList{u"copy"_s, u"paste"_s, u"undo"_s, u"redo"_s}));
    }
}

TEST(Contextual, HoldsOwnShortcutsOfTheApplication)
{
    Program program(
        {.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {}, {u"A"_s, u"Quokka"_s})}),
         .frontmost = RunningApplication{u"Quokka"_s, 1}});
    EXPECT_EQ(contextualIds(program), QStringList{u"custom-1"_s});
}

TEST(Contextual, DoesNotCareForSearchSectionAndModifiers)
{
    Program program({.frontmost = RunningApplication{u"Firefox"_s, 1}});
    program.model().setSearch(u"nothing like this"_s);
    program.model().setSelection({SidebarSelection::Kind::favorites});
    program.model().toggleModifier(ModifierFilter::fn);
    EXPECT_EQ(contextualIds(program), (QStringList{u"address"_s, u"reload"_s, u"bookmark"_s}));
}

TEST(ContextualModel, FollowsEverythingThatTheListDependsOn)
{
    Program program({.stored = {{u"learningMode"_s, true}}, .frontmost = RunningApplication{u"Finder"_s, 1}});
    AppModel &model = program.model();
    ShortcutListModel &list = *model.contextualModel();
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);
    const auto expectCurrent = [&] {
        EXPECT_EQ(rowsOf(list), idsOf(model.contextual()));
    };
    expectCurrent();
    model.recordMouseAction(u"Eject Disk"_s);
    expectCurrent();
    EXPECT_EQ(rowsOf(list).first(), u"eject"_s);
    model.addCustom(u"Quokka"_s, {u"⌘"_s}, Shortcut::Category::finder, u"Finder"_s, {});
    expectCurrent();
    model.recordMouseAction(u"Quokka"_s);
    model.recordMouseAction(u"Quokka"_s);
    expectCurrent();
    EXPECT_EQ(rowsOf(list).first(), model.customShortcuts().first().id);
    model.deleteCustom(model.customShortcuts().first());
    expectCurrent();
    program.workspace.activate({u"Firefox"_s, 2});
    expectCurrent();
    EXPECT_EQ(rowsOf(list), (QStringList{u"address"_s, u"reload"_s, u"bookmark"_s}));
    const QString englishTitle = model.contextual().constFirst().title;
    program.localization().setLanguage(AppLanguage::Czech);
    expectCurrent();
    EXPECT_EQ(list.data(list.index(0), ShortcutListModel::TitleRole).toString(),
              model.contextual().constFirst().title);
    EXPECT_NE(model.contextual().constFirst().title, englishTitle);
}

TEST(ContextualModel, MovesAShortcutThatIsUsedMore)
{
    Program program({.frontmost = RunningApplication{u"Finder"_s, 1}});
    ShortcutListModel &list = *program.model().contextualModel();
    const QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Warning);
    const QPersistentModelIndex quickLook = list.index(list.rowOf(u"quick-look"_s));
    const QSignalSpy removed(&list, &QAbstractItemModel::rowsRemoved);
    const QSignalSpy inserted(&list, &QAbstractItemModel::rowsInserted);
    const QSignalSpy moved(&list, &QAbstractItemModel::rowsMoved);
    program.model().recordMouseAction(u"Quick Look"_s);
    EXPECT_EQ(rowsOf(list), (QStringList{u"quick-look"_s, u"new-folder"_s, u"go-folder"_s, u"trash"_s}));
    EXPECT_EQ(quickLook.row(), 0);
    EXPECT_EQ(moved.size(), 1);
    EXPECT_TRUE(removed.isEmpty());
    EXPECT_TRUE(inserted.isEmpty());
}

TEST(ContextualModel, ShowsItsTextsInTheCurrentLanguage)
{
    Program program({.frontmost = RunningApplication{u"Quokka"_s, 1}});
    ShortcutListModel &list = *program.model().contextualModel();
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(list.data(list.index(0), ShortcutListModel::TitleRole), QVariant(u"Kopírovat"_s));
    EXPECT_EQ(list.data(list.index(0), ShortcutListModel::HeaderTextRole), QVariant(u"Základy"_s));
}

TEST(ContextualModel, TellsThatHeadersOfOwnShortcutsFollowTheLanguage)
{
    Program program({.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {}, {u"Quokka"_s})}),
                     .frontmost = RunningApplication{u"Quokka"_s, 1}});
    ShortcutListModel &list = *program.model().contextualModel();
    const QSignalSpy changed(&list, &QAbstractItemModel::dataChanged);
    program.localization().setLanguage(AppLanguage::Czech);
    EXPECT_EQ(list.data(list.index(0), ShortcutListModel::HeaderTextRole), QVariant(u"Základy · Quokka"_s));
    EXPECT_FALSE(changed.isEmpty());
}

TEST(ContextualModel, ShowsWhatIsAFavorite)
{
    Program program({.frontmost = RunningApplication{u"Quokka"_s, 1}});
    ShortcutListModel &list = *program.model().contextualModel();
    EXPECT_EQ(list.data(list.index(list.rowOf(u"copy"_s)), ShortcutListModel::IsFavoriteRole),
              QVariant(true));
    program.model().toggleFavorite(u"copy"_s);
    EXPECT_EQ(list.data(list.index(list.rowOf(u"copy"_s)), ShortcutListModel::IsFavoriteRole),
              QVariant(false));
}

} // namespace keyvora
