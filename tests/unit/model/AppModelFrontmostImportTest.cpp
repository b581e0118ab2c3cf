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

TEST(FrontmostImport, AppendsTheShortcutsOfTheMenuAndStoresThem)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"1"_s});
    Program program({.stored = storedCustom({own}), .frontmost = safari});
    program.accessibility.setMenuBar(4711,
                                     menuOf({menuItem(u"Zebra"_s, u"z"_s), menuItem(u"Apple"_s, u"a"_s)}));
    QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    importFrontmost(program);
    const QList<Shortcut> expected{own, imported(safari, u"Zebra"_s, u"Z"_s),
                                   imported(safari, u"Apple"_s, u"A"_s)};
    EXPECT_EQ(program.model().customShortcuts(), expected);
    EXPECT_EQ(storedCustomOf(program), expected);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(program.model().importMessage(), u"Imported 2 shortcuts from Safari."_s);
}

TEST(FrontmostImport, SpeaksCzech)
{
    Program program(inFront(safari, u"cs-CZ"_s));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"Nová věc"_s, u"t"_s)}));
    importFrontmost(program);
    ASSERT_EQ(program.model().customShortcuts().size(), 1);
    EXPECT_EQ(program.model().customShortcuts()[0].detail, u"Importováno z menu aplikace Safari."_s);
    EXPECT_EQ(program.model().importMessage(), u"Importováno 1 zkratek z aplikace Safari."_s);
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(), u"V menu nebyly nalezeny žádné nové zkratky."_s);
}

TEST(FrontmostImport, KeepsTheFormOfTheWordForOne)
{
    Program program(inFront({u"%1 %2"_s, 4711}));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from %1 %2."_s);
}

TEST(FrontmostImport, AddsNoMoreThanABackupHolds)
{
    Program program({.stored = storedCustom(nearlyAllThatFits()), .frontmost = safari});
    program.accessibility.setMenuBar(4711, menuOfTen());
    importFrontmost(program);
    expectNoMoreThanFits(program, u"Imported %1 shortcuts from Safari."_s);
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(), u"There is no room for more shortcuts."_s);
}

TEST(FrontmostImport, FindsNothingNewThoughThereIsNoRoom)
{
    const Shortcut own = makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"1"_s}, {},
                                      QString(BackupLimits::textBytes * 3 / 4, u'x'));
    Program program({.stored = storedCustom({own}), .frontmost = safari});
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"Copy"_s, u"c"_s)}));
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(), u"No new shortcuts were found in the menu."_s);
}

TEST(FrontmostImport, AddsNothingTheSecondTime)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    importFrontmost(program);
    QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    QSignalSpy messages(&program.model(), &AppModel::importMessageChanged);
    importFrontmost(program);
    EXPECT_EQ(program.model().customShortcuts().size(), 1);
    EXPECT_EQ(program.model().importMessage(), u"No new shortcuts were found in the menu."_s);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_EQ(messages.size(), 1);
    importFrontmost(program);
    EXPECT_EQ(messages.size(), 1) << "the same message is no news";
}

TEST(FrontmostImport, StoresTheListAlsoWhenNothingIsNew)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({}));
    importFrontmost(program);
    EXPECT_EQ(program.stored(), (QJsonObject{{u"customShortcuts"_s, QJsonArray()}}));
}

TEST(FrontmostImport, KnowsOwnShortcutsByTitleInAnyCaseAndKeys)
{
    Program program({.stored = storedCustom({makeShortcut(u"custom-1"_s, u"NEW THING"_s, {u"⌘"_s, u"T"_s})}),
                     .frontmost = safari});
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s),
                                                   menuItem(u"New Thing"_s, u"t"_s, MenuModifier::Shift)}));
    importFrontmost(program);
    ASSERT_EQ(program.model().customShortcuts().size(), 2);
    EXPECT_EQ(program.model().customShortcuts()[1].keys, (QStringList{u"⇧"_s, u"⌘"_s, u"T"_s}));
}

TEST(FrontmostImport, KnowsTheCatalogInTheCurrentLanguage)
{
    const MenuTree menu = menuOf({menuItem(u"COPY"_s, u"c"_s), menuItem(u"Kopírovat"_s, u"c"_s)});
    Program english(inFront(safari));
    english.accessibility.setMenuBar(4711, menu);
    importFrontmost(english);
    EXPECT_EQ(english.model().customShortcuts(), QList<Shortcut>{imported(safari, u"Kopírovat"_s, u"C"_s)});
    english.end();

    Program czech(inFront(safari, u"cs-CZ"_s));
    czech.accessibility.setMenuBar(4711, menu);
    importFrontmost(czech);
    ASSERT_EQ(czech.model().customShortcuts().size(), 1);
    EXPECT_EQ(czech.model().customShortcuts()[0].title, u"COPY"_s);
}

TEST(FrontmostImport, KeepsRepetitionsWithinOneMenu)
{
    Program program(inFront(safari));
    const MenuElement item = menuItem(u"New Thing"_s, u"t"_s);
    program.accessibility.setMenuBar(4711, menuOf({item, item}));
    importFrontmost(program);
    const Shortcut shortcut = imported(safari, u"New Thing"_s, u"T"_s);
    EXPECT_EQ(program.model().customShortcuts(), (QList<Shortcut>{shortcut, shortcut}));
    EXPECT_EQ(program.model().importMessage(), u"Imported 2 shortcuts from Safari."_s);
}

TEST(FrontmostImport, ShowsThatItIsUnderWay)
{
    Program program(inFront(safari));
    program.accessibility.setHoldsAnswers(true);
    AppModel &model = program.model();
    QSignalSpy states(&model, &AppModel::isImportingChanged);
    model.importFrontmostMenu();
    EXPECT_TRUE(model.isImporting());
    EXPECT_EQ(states.size(), 1);
    ASSERT_TRUE(isReading(program, {4711}));
    EXPECT_TRUE(model.isImporting());
    EXPECT_FALSE(model.importProgress().has_value());
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !model.isImporting(); }));
    EXPECT_EQ(states.size(), 2);
}

TEST(FrontmostImport, HasToldItsOutcomeWhenItEnds)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    AppModel &model = program.model();
    QString atTheEnd;
    QObject::connect(&model, &AppModel::isImportingChanged, &model, [&] {
        if (!model.isImporting())
            atTheEnd = model.importMessageText();
    });
    importFrontmost(program);
    EXPECT_EQ(atTheEnd, u"Imported 1 shortcuts from Safari."_s);
}

TEST(FrontmostImport, FailsWithoutAnApplication)
{
    Program program;
    QSignalSpy states(&program.model(), &AppModel::isImportingChanged);
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(),
              u"Couldn't read the active app. Switch to it and try importing again."_s);
    EXPECT_EQ(states.size(), 2);
    EXPECT_EQ(program.accessibility.trustChecks(), 0);
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(FrontmostImport, FailsOnItself)
{
    // Without a name it counts as the application in front until another one comes.
    Program program(inFront({{}, ourselves().pid}));
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(),
              u"Couldn't read the active app. Switch to it and try importing again."_s);
}

TEST(FrontmostImport, FailsWithoutPermissionAndAsksForIt)
{
    Program program(inFront(safari, u"cs-CZ"_s));
    program.accessibility.setTrusted(false);
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    QSignalSpy prompts(&program.accessibility, &Accessibility::trustRequested);
    QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(),
              u"Pro import povolte Keyvora Zpřístupnění v Nastavení systému."_s);
    EXPECT_EQ(prompts.size(), 1);
    EXPECT_TRUE(changes.isEmpty());
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(FrontmostImport, FailsWithoutAMenu)
{
    Program program(inFront(safari));
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(),
              u"The active app's menu is unavailable or contains no shortcuts."_s);
    EXPECT_TRUE(program.stored().isEmpty());
}

TEST(FrontmostImport, EndsAlsoWhenNobodyAnswers)
{
    Program program(inFront(safari));
    program.model().importFrontmostMenu();
    program.accessibility.setGivesAnswers(false);
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().importMessage(),
              u"The active app's menu is unavailable or contains no shortcuts."_s);
}

TEST(FrontmostImport, NamesTheApplicationThatItReadThoughAnotherCameToTheFront)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importFrontmostMenu();
    ASSERT_TRUE(isReading(program, {4711}));
    program.workspace.activate(finder);
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{imported(safari, u"New Thing"_s, u"T"_s)});
    EXPECT_EQ(program.model().importMessage(), u"Imported 1 shortcuts from Safari."_s);
}

TEST(FrontmostImport, KnowsWhatTheUserAddedMeanwhile)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importFrontmostMenu();
    ASSERT_TRUE(isReading(program, {4711}));
    program.model().addCustom(u"new thing"_s, {u"⌘"_s, u"T"_s}, Shortcut::Category::text, {}, {});
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().customShortcuts().size(), 1);
    EXPECT_EQ(program.model().importMessage(), u"No new shortcuts were found in the menu."_s);
}

TEST(FrontmostImport, FindsWhatIsNewAmongTenThousand)
{
    constexpr int count = 10'000;
    QList<Shortcut> own;
    QList<MenuElement> items;
    for (int index = 0; index < count; ++index) {
        const QString number = QString::number(index);
        own.append(makeShortcut("custom-"_L1 + number, "Command "_L1 + number, {u"⌘"_s, u"X"_s}));
        // Every other one is known.
        items.append(menuItem((index % 2 == 0 ? "COMMAND "_L1 : "Other "_L1) + number, u"x"_s));
    }
    Program program({.stored = storedCustom(own), .frontmost = safari});
    program.accessibility.setMenuBar(4711, menuOf(items));
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(), u"Imported 5000 shortcuts from Safari."_s);
    const QList<Shortcut> &custom = program.model().customShortcuts();
    ASSERT_EQ(custom.size(), count + count / 2);
    EXPECT_EQ(custom.first(count), own);
    for (int index = 0; index < count / 2; ++index)
        ASSERT_EQ(custom[count + index].title, "Other "_L1 + QString::number(2 * index + 1));
    EXPECT_EQ(storedCustomOf(program), custom);
    importFrontmost(program);
    EXPECT_EQ(program.model().importMessage(), u"No new shortcuts were found in the menu."_s);
}

TEST(FrontmostImport, TwiceAtOnceAddsOnce)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    QSignalSpy states(&program.model(), &AppModel::isImportingChanged);
    program.model().importFrontmostMenu();
    program.model().importFrontmostMenu();
    ASSERT_TRUE(isReading(program, {4711, 4711}));
    program.accessibility.answer();
    EXPECT_TRUE(becomesTrue([&] { return !program.model().isImporting(); }));
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{imported(safari, u"New Thing"_s, u"T"_s)});
    EXPECT_EQ(storedCustomOf(program).value_or(QList<Shortcut>()).size(), 1);
    EXPECT_EQ(program.model().importMessage(), u"No new shortcuts were found in the menu."_s);
    EXPECT_EQ(states.size(), 2) << "under way until the last of them ends";
}

TEST(FrontmostImport, EndsWithTheModel)
{
    Program program(inFront(safari));
    program.accessibility.setMenuBar(4711, menuOf({menuItem(u"New Thing"_s, u"t"_s)}));
    program.accessibility.setHoldsAnswers(true);
    program.model().importFrontmostMenu();
    ASSERT_TRUE(isReading(program, {4711}));
    program.end();
    program.accessibility.answer();
    settle();
    EXPECT_FALSE(QFile::exists(program.storePath()));
}

} // namespace keyvora
