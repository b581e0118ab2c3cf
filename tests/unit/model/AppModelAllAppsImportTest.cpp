// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/Waiting.h"
#include "model/AppModel.h"
#include "model/MenuShortcutImporter.h"
#include "model/ShortcutLibrary.h"
#include "unit/Settle.h"
#include "unit/model/MenuImports.h"
#include "unit/model/Menus.h"
#include "unit/model/Program.h"

#include <QJsonArray>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

TEST(AllAppsImport, AppendsTheShortcutsOfAllApplicationsInTheirOrder)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"1"_s});
    Program program({.stored = storedCustom({own})});
    program.workspace.setRunning({{finder, ourselves(), safari, mail}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"Zebra"_s, u"z"_s)}));
    program.accessibility.setMenuBar(4711,
                                     menuOf({menuItem(u"Apple"_s, u"a"_s), menuItem(u"Bear"_s, u"b"_s)}));
    program.accessibility.setMenuBar(42, menuOf({}));
    QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    importAll(program);
    const QList<Shortcut> expected{own, imported(finder, u"Zebra"_s, u"Z"_s),
                                   imported(safari, u"Apple"_s, u"A"_s), imported(safari, u"Bear"_s, u"B"_s)};
    EXPECT_EQ(program.model().customShortcuts(), expected);
    EXPECT_EQ(storedCustomOf(program), expected);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(program.model().importMessage(), u"Imported 3 shortcuts from 2 apps."_s);
    EXPECT_EQ(program.accessibility.menuBarsRead(), (QList<qint32>{815, 4711, 42}));
}

TEST(AllAppsImport, SpeaksCzech)
{
    Program program({.languages = {u"cs-CZ"_s}});
    program.workspace.setRunning({{finder}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"Nová věc"_s, u"n"_s)}));
    importAll(program);
    EXPECT_EQ(program.model().importMessage(), u"Importováno 1 zkratek z 1 aplikací."_s);
    const QSignalSpy changes(&program.model(), &AppModel::importMessageChanged);
    program.localization().setLanguage(AppLanguage::English);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from 1 apps."_s);
    program.localization().setLanguage(AppLanguage::Czech);
    importAll(program);
    EXPECT_EQ(program.model().importMessage(), u"V žádné spuštěné aplikaci nebyly nalezeny nové zkratky."_s);
    program.workspace.setRunning({{ourselves()}});
    importAll(program);
    EXPECT_EQ(program.model().importMessage(), u"Nenašel jsem žádné spuštěné aplikace k importu."_s);
    program.accessibility.setTrusted(false);
    importAll(program);
    EXPECT_EQ(program.model().importMessage(),
              u"Pro import povolte Keyvora Zpřístupnění v Nastavení systému."_s);
}

TEST(AllAppsImport, TakesASharedShortcutFromTheFirstApplicationOnly)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"NEW THING"_s, u"t"_s)}));
    importAll(program);
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{imported(finder, u"New Thing"_s, u"T"_s)});
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from 1 apps."_s);
}

TEST(AllAppsImport, KeepsRepetitionsWithinOneMenu)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    const MenuElement item = menuItem(u"New Thing"_s, u"t"_s);
    program.accessibility.setMenuBar(815, menuOf({item, item}));
    program.accessibility.setMenuBar(4711, menuOf({item, item}));
    importAll(program);
    const Shortcut shortcut = imported(finder, u"New Thing"_s, u"T"_s);
    EXPECT_EQ(program.model().customShortcuts(), (QList<Shortcut>{shortcut, shortcut}));
}

TEST(AllAppsImport, AddsNoMoreThanABackupHolds)
{
    Program program({.stored = storedCustom(nearlyAllThatFits())});
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOfTen());
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"Something Else"_s, u"e"_s)}));
    importAll(program);
    expectNoMoreThanFits(program, u"Imported %1 shortcuts from 1 apps."_s);
    importAll(program);
    EXPECT_EQ(program.model().importMessage(), u"There is no room for more shortcuts."_s);
}

TEST(AllAppsImport, PassesOverApplicationsThatFail)
{
    Program program;
    program.workspace.setRunning({{finder, safari, mail}});
    program.accessibility.setMenuBar(42, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    importAll(program);
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{imported(mail, u"New Thing"_s, u"T"_s)});
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from 1 apps."_s);
}

TEST(AllAppsImport, FindsNothingNewTheSecondTime)
{
    Program program;
    program.workspace.setRunning({{finder}});
    program.accessibility.setMenuBar(815,
                                     menuOf({menuItem(u"New Thing"_s, u"t"_s), menuItem(u"Copy"_s, u"c"_s)}));
    importAll(program);
    QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    importAll(program);
    EXPECT_EQ(program.model().customShortcuts().size(), 1);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(program.model().importMessage(), u"No new shortcuts were found in any running app."_s);
}

TEST(AllAppsImport, StoresTheListAlsoWhenNothingIsNew)
{
    Program program;
    program.workspace.setRunning({{finder}});
    importAll(program);
    EXPECT_EQ(program.stored(), (QJsonObject{{u"customShortcuts"_s, QJsonArray()}}));
}

TEST(AllAppsImport, FindsNoApplicationWhereOnlyThisProgramRuns)
{
    Program program;
    program.workspace.setRunning({{ourselves()}});
    QSignalSpy states(&program.model(), &AppModel::isImportingChanged);
    QSignalSpy progress(&program.model(), &AppModel::importProgressChanged);
    importAll(program);
    EXPECT_EQ(program.model().importMessage(), u"No running apps found to import from."_s);
    EXPECT_EQ(states.size(), 2);
    EXPECT_TRUE(progress.isEmpty());
    EXPECT_TRUE(program.accessibility.menuBarsRead().isEmpty());
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(AllAppsImport, FindsNoApplicationWhereTheDesktopDoesNotAnswer)
{
    Program program;
    program.workspace.setRunning(std::nullopt);
    importAll(program);
    EXPECT_EQ(program.model().importMessage(), u"No running apps found to import from."_s);
}

TEST(AllAppsImport, StopsWithoutPermissionAndAsksForIt)
{
    Program program;
    program.accessibility.setTrusted(false);
    program.workspace.setRunning({{finder}});
    QSignalSpy prompts(&program.accessibility, &Accessibility::trustRequested);
    QSignalSpy states(&program.model(), &AppModel::isImportingChanged);
    importAll(program);
    EXPECT_EQ(program.model().importMessage(),
              u"To import, allow Keyvora Accessibility access in System Settings."_s);
    EXPECT_EQ(prompts.size(), 1);
    EXPECT_TRUE(states.isEmpty());
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(AllAppsImport, PassesOverWhatItMayNoLongerRead)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"Other Thing"_s, u"o"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    program.accessibility.setTrusted(false);
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from 1 apps."_s);
}

TEST(AllAppsImport, ReadsOneApplicationAfterAnother)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    settle();
    EXPECT_EQ(program.accessibility.menuBarsRead(), QList<qint32>{815});
    program.accessibility.answer();
    ASSERT_TRUE(isReading(program, {815, 4711}));
    EXPECT_TRUE(program.model().isImporting());
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
}

TEST(AllAppsImport, ShowsItsProgressAlsoForApplicationsThatItSkips)
{
    Program program;
    program.workspace.setRunning(
        {{RunningApplication{{}, 1}, finder, RunningApplication{u"No process"_s, {}}, ourselves(), safari}});
    ProgressLog progress(program.model());
    importAll(program);
    EXPECT_EQ(progress.steps(), (QList<std::pair<int, int>>{{1, 4}, {2, 4}, {3, 4}, {4, 4}, {0, 0}}));
    EXPECT_EQ(program.accessibility.menuBarsRead(), (QList<qint32>{815, 4711}));
    EXPECT_FALSE(program.model().importProgress().has_value());
}

TEST(AllAppsImport, ShowsTheProgressBeforeItReads)
{
    Program program;
    program.workspace.setRunning({{finder}});
    int told = 0;
    QObject::connect(&program.model(), &AppModel::importProgressChanged, &program.model(), [&] {
        if (program.model().importProgress()) {
            ++told;
            EXPECT_TRUE(program.model().isImporting());
            EXPECT_TRUE(program.accessibility.menuBarsRead().isEmpty());
        }
    });
    importAll(program);
    EXPECT_EQ(program.accessibility.menuBarsRead(), QList<qint32>{815});
    EXPECT_EQ(told, 1);
}

TEST(AllAppsImport, ChangesTheLibraryAtTheEndOnly)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    program.accessibility.answer();
    ASSERT_TRUE(isReading(program, {815, 4711}));
    EXPECT_TRUE(program.model().customShortcuts().isEmpty());
    EXPECT_TRUE(program.stored().isEmpty());
    EXPECT_EQ(program.model().importMessage(), std::nullopt);
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().customShortcuts().size(), 1);
}

TEST(AllAppsImport, KnowsWhatTheUserAddedMeanwhile)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setMenuBar(
        4711, menuOf({menuItem(u"Other Thing"_s, u"o"_s), menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    program.accessibility.answer();
    ASSERT_TRUE(isReading(program, {815, 4711}));
    program.model().addCustom(u"Other Thing"_s, {u"⌘"_s, u"O"_s}, Shortcut::Category::text, {}, {});
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    ASSERT_EQ(program.model().customShortcuts().size(), 2);
    EXPECT_EQ(program.model().customShortcuts()[1], imported(finder, u"New Thing"_s, u"T"_s));
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from 1 apps."_s);
}

TEST(AllAppsImport, TakesAgainWhatTheUserDeletedMeanwhile)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"New Thing"_s, {u"⌘"_s, u"T"_s});
    Program program({.stored = storedCustom({own})});
    program.workspace.setRunning({{finder, safari}});
    const MenuTree menu = menuOf({menuItem(u"New Thing"_s, u"t"_s)});
    program.accessibility.setMenuBar(815, menu);
    program.accessibility.setMenuBar(4711, menu);
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    program.accessibility.answer();
    ASSERT_TRUE(isReading(program, {815, 4711}));
    program.model().deleteCustom(own);
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{imported(safari, u"New Thing"_s, u"T"_s)});
}

TEST(AllAppsImport, KnowsTheCatalogInTheLanguageOfTheMoment)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    const MenuTree menu = menuOf({menuItem(u"Copy"_s, u"c"_s), menuItem(u"Kopírovat"_s, u"c"_s)});
    program.accessibility.setMenuBar(815, menu);
    program.accessibility.setMenuBar(4711, menu);
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    program.accessibility.answer();
    ASSERT_TRUE(isReading(program, {815, 4711}));
    program.localization().setLanguage(AppLanguage::Czech);
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    const QList<Shortcut> &custom = program.model().customShortcuts();
    ASSERT_EQ(custom.size(), 2);
    EXPECT_EQ(custom[0], imported(finder, u"Kopírovat"_s, u"C"_s));
    EXPECT_EQ(custom[1].title, u"Copy"_s);
    EXPECT_EQ(custom[1].apps, QStringList{u"Safari"_s});
    EXPECT_EQ(program.model().importMessage(), u"Importováno 2 zkratek z 2 aplikací."_s);
}

TEST(AllAppsImport, BesideOneOfTheFrontmostMenuLosesNothing)
{
    Program program(inFront(safari));
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"Other Thing"_s, u"o"_s)}));
    QSignalSpy states(&program.model(), &AppModel::isImportingChanged);
    program.model().importAllRunningApps();
    program.model().importFrontmostMenu();
    settle();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    QList<Shortcut> custom = program.model().customShortcuts();
    EXPECT_EQ(custom.removeAll(imported(finder, u"New Thing"_s, u"T"_s)), 1);
    EXPECT_EQ(custom, QList<Shortcut>{imported(safari, u"Other Thing"_s, u"O"_s)});
    EXPECT_FALSE(program.model().importProgress().has_value());
    EXPECT_EQ(storedCustomOf(program), program.model().customShortcuts());
}

TEST(AllAppsImport, TwiceAtOnceEndsBoth)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"Other Thing"_s, u"o"_s)}));
    program.model().importAllRunningApps();
    program.model().importAllRunningApps();
    settle();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.accessibility.menuBarsRead().size(), 4);
    EXPECT_FALSE(program.model().importProgress().has_value());
    EXPECT_EQ(storedCustomOf(program), program.model().customShortcuts());
}

TEST(AllAppsImport, EndsWithTheModel)
{
    Program program;
    program.workspace.setRunning({{finder, safari}});
    program.accessibility.setMenuBar(815, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importAllRunningApps();
    ASSERT_TRUE(isReading(program, {815}));
    program.end();
    program.accessibility.answer();
    settle();
    EXPECT_EQ(program.accessibility.menuBarsRead(), QList<qint32>{815});
    EXPECT_FALSE(QFile::exists(program.storePath()));
}

} // namespace keyvora
