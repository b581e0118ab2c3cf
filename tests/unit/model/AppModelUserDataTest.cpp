// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"
#include "unit/model/Program.h"

#include <QJsonArray>
#include <QRegularExpression>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

using Category = Shortcut::Category;

QSet<QString> storedFavorites(const Program &program)
{
    QSet<QString> ids;
    for (const QJsonValue &id : program.stored()[u"favorites"_s].toArray())
        ids.insert(id.toString());
    return ids;
}

std::optional<QString> conflictId(Program &program, const QStringList &keys, const QString &app = {},
                                  const std::optional<QString> &excluding = {})
{
    const auto conflict = program.model().conflict(keys, app, excluding);
    return conflict ? std::optional(conflict->id) : std::nullopt;
}

} // namespace

TEST(ToggleFavorite, AddsRemovesAndStores)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::favoritesChanged);
    program.model().toggleFavorite(u"redo"_s);
    const QSet<QString> withRedo{u"copy"_s, u"paste"_s, u"spotlight"_s, u"shot-area"_s, u"redo"_s};
    EXPECT_EQ(program.model().favorites(), withRedo);
    EXPECT_EQ(storedFavorites(program), withRedo);
    EXPECT_EQ(program.stored()[u"favorites"_s].toArray().size(), 5);
    program.model().toggleFavorite(makeShortcut(u"redo"_s));
    EXPECT_FALSE(program.model().favorites().contains(u"redo"_s));
    EXPECT_EQ(storedFavorites(program), program.model().favorites());
    EXPECT_EQ(changes.size(), 2);
}

TEST(ToggleFavorite, StoresAnEmptyListThatStaysEmpty)
{
    Program program;
    for (const auto &id : {u"copy"_s, u"paste"_s, u"spotlight"_s, u"shot-area"_s})
        program.model().toggleFavorite(id);
    EXPECT_EQ(program.stored()[u"favorites"_s], QJsonValue(QJsonArray()));
    program.restart();
    EXPECT_TRUE(program.model().favorites().isEmpty());
}

TEST(ToggleFavorite, SurvivesARestartAndAChangeOfLanguage)
{
    Program program;
    program.model().toggleFavorite(u"redo"_s);
    program.localization().setLanguage(AppLanguage::Czech);
    program.restart();
    EXPECT_TRUE(program.model().favorites().contains(u"redo"_s));
}

TEST(Conflict, IsNothingForNoKeys)
{
    Program program({.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Keyless"_s)})});
    EXPECT_EQ(conflictId(program, {}), std::nullopt);
}

TEST(Conflict, DoesNotMindOrderAndRepetitionOfKeys)
{
    Program program(
        {.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"⇧"_s, u"S"_s})})});
    EXPECT_EQ(conflictId(program, {u"⇧"_s, u"⌘"_s, u"S"_s}), u"custom-1"_s);
    EXPECT_EQ(conflictId(program, {u"S"_s, u"⌘"_s, u"S"_s, u"⇧"_s}), u"custom-1"_s);
}

TEST(Conflict, NeedsTheSameKeysAndNoOthers)
{
    Program program;
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"S"_s}), u"save"_s);
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"⇧"_s, u"S"_s}), std::nullopt);
    EXPECT_EQ(conflictId(program, {u"⌘"_s}), std::nullopt);
}

TEST(Conflict, MindsTheCaseOfKeys)
{
    Program program;
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"s"_s}), std::nullopt);
}

TEST(Conflict, OfAnApplicationIsWithSystemWideShortcuts)
{
    Program program;
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"C"_s}, u"Safari"_s), u"copy"_s);
}

TEST(Conflict, OfAnApplicationIsWithItsOwnShortcuts)
{
    Program program;
    EXPECT_EQ(conflictId(program, {u"⌥"_s, u"⌘"_s, u"L"_s}, u"Safari"_s), u"downloads-browser"_s);
    EXPECT_EQ(conflictId(program, {u"⌥"_s, u"⌘"_s, u"L"_s}, u" \tSafari\n"_s), u"downloads-browser"_s);
    EXPECT_EQ(conflictId(program, {u"⌥"_s, u"⌘"_s, u"L"_s}, u"Finder"_s), u"downloads"_s);
}

TEST(Conflict, OfAnApplicationIsNotWithThoseOfOthers)
{
    Program program;
    EXPECT_EQ(conflictId(program, {u"⇧"_s, u"⌘"_s, u"G"_s}, u"Safari"_s), std::nullopt);
    EXPECT_EQ(conflictId(program, {u"⌥"_s, u"⌘"_s, u"L"_s}, u"safari"_s), std::nullopt);
    EXPECT_EQ(conflictId(program, {u"⌥"_s, u"⌘"_s, u"L"_s}, u"Safari Technology"_s), std::nullopt);
}

TEST(Conflict, OfASystemWideShortcutIsWithThoseOfAnyApplication)
{
    Program program;
    EXPECT_EQ(conflictId(program, {u"⇧"_s, u"⌘"_s, u"G"_s}, QString()), u"go-folder"_s);
    EXPECT_EQ(conflictId(program, {u"⇧"_s, u"⌘"_s, u"G"_s}, u" \n"_s), u"go-folder"_s);
}

TEST(Conflict, IsTheFirstOfTheLibrary)
{
    Program program({.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"C"_s})})});
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"C"_s}), u"copy"_s);
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"C"_s}, {}, u"copy"_s), u"custom-1"_s);
}

TEST(Conflict, IsNotWithTheShortcutBeingEdited)
{
    Program program({.stored = storedCustom({makeShortcut(u"custom-1"_s, u"Own"_s, {u"⌘"_s, u"9"_s})})});
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"9"_s}, {}, u"custom-1"_s), std::nullopt);
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"9"_s}, {}, u"custom-2"_s), u"custom-1"_s);
    EXPECT_EQ(conflictId(program, {u"⌘"_s, u"9"_s}), u"custom-1"_s);
}

TEST(AddCustom, AppendsAndStores)
{
    Program program;
    const QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    program.model().addCustom(u"First"_s, {u"⌘"_s, u"1"_s}, Category::text, u"Quokka"_s, u"Does it."_s);
    program.model().addCustom(u"Second"_s, {u"G"_s, u"→"_s, u"I"_s}, Category::okna, {}, {});
    const QList<Shortcut> &own = program.model().customShortcuts();
    ASSERT_EQ(own.size(), 2);
    EXPECT_EQ(own.at(0), makeShortcut(own.at(0).id, u"First"_s, {u"⌘"_s, u"1"_s}, {u"Quokka"_s},
                                      u"Does it."_s, Category::text));
    EXPECT_EQ(own.at(1), makeShortcut(own.at(1).id, u"Second"_s, {u"G"_s, u"→"_s, u"I"_s}, {},
                                      u"Custom keyboard shortcut."_s, Category::okna));
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(storedCustomOf(program), own);
    const QList<Shortcut> before = own;
    program.restart();
    EXPECT_EQ(program.model().customShortcuts(), before);
}

TEST(AddCustom, GivesEachShortcutAnIdOfItsOwn)
{
    static const QRegularExpression form(
        u"\\Acustom-[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}\\z"_s);
    Program program;
    QSet<QString> ids;
    for (int i = 0; i < 100; ++i)
        program.model().addCustom(u"Same"_s, {u"⌘"_s}, Category::text, {}, {});
    for (const Shortcut &shortcut : program.model().customShortcuts()) {
        EXPECT_TRUE(form.match(shortcut.id).hasMatch()) << shortcut.id.toStdString();
        ids.insert(shortcut.id);
    }
    EXPECT_EQ(ids.size(), 100);
}

TEST(AddCustom, DescribesAShortcutWithoutADescriptionInTheCurrentLanguage)
{
    Program program({.languages = {u"cs-CZ"_s}});
    program.model().addCustom(u"První"_s, {u"⌘"_s}, Category::text, {}, {});
    program.localization().setLanguage(AppLanguage::English);
    EXPECT_EQ(program.model().customShortcuts().first().detail, u"Vlastní klávesová zkratka."_s);
}

TEST(AddCustom, TakesABlankApplicationForNone)
{
    Program program;
    program.model().addCustom(u"A"_s, {u"⌘"_s}, Category::text, u" \n\t "_s, {});
    EXPECT_EQ(program.model().customShortcuts().first().apps, QStringList());
}

TEST(DeleteCustom, RemovesEveryOwnShortcutWithTheIdAndKeepsTheOrder)
{
    const QList<Shortcut> own{makeShortcut(u"a"_s, u"1"_s), makeShortcut(u"b"_s, u"2"_s),
                              makeShortcut(u"a"_s, u"3"_s), makeShortcut(u"c"_s, u"4"_s)};
    Program program({.stored = storedCustom(own)});
    const QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    program.model().deleteCustom(makeShortcut(u"a"_s, u"something else"_s));
    EXPECT_EQ(program.model().customShortcuts(), (QList<Shortcut>{own.at(1), own.at(3)}));
    EXPECT_EQ(storedCustomOf(program), program.model().customShortcuts());
    EXPECT_EQ(changes.size(), 1);
}

TEST(DeleteCustom, MayBeGivenAnElementOfTheListItself)
{
    Program program({.stored = storedCustom({makeShortcut(u"a"_s), makeShortcut(u"b"_s)})});
    program.model().deleteCustom(program.model().customShortcuts().first());
    EXPECT_EQ(idsOf(program.model().customShortcuts()), QStringList{u"b"_s});
}

TEST(DeleteCustom, LeavesTheCatalogAlone)
{
    Program program;
    program.model().deleteCustom(program.model().allShortcuts().first());
    EXPECT_EQ(program.model().allShortcuts().size(), 114);
}

TEST(DeleteCustom, RemovesAFavoriteAtOnceButStoresThatWithTheNextToggle)
{
    QJsonObject stored = storedCustom({makeShortcut(u"custom-1"_s)});
    stored[u"favorites"_s] = QJsonArray{u"copy"_s, u"custom-1"_s};
    Program program({.stored = stored});
    const QSignalSpy changes(&program.model(), &AppModel::favoritesChanged);
    program.model().deleteCustom(makeShortcut(u"custom-1"_s));
    EXPECT_EQ(program.model().favorites(), QSet<QString>{u"copy"_s});
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(storedFavorites(program), (QSet<QString>{u"copy"_s, u"custom-1"_s}));
    program.model().toggleFavorite(u"redo"_s);
    EXPECT_EQ(storedFavorites(program), (QSet<QString>{u"copy"_s, u"redo"_s}));
}

TEST(RestoreCustom, PutsEachShortcutBackWhereItWas)
{
    const QList<Shortcut> own{makeShortcut(u"a"_s, u"1"_s), makeShortcut(u"b"_s, u"2"_s),
                              makeShortcut(u"a"_s, u"3"_s), makeShortcut(u"c"_s, u"4"_s)};
    Program program({.stored = storedCustom(own)});
    const DeletedCustom deleted = program.model().deleteCustom(own.at(0));
    const QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    program.model().restoreCustom(deleted);
    EXPECT_EQ(program.model().customShortcuts(), own);
    EXPECT_EQ(storedCustomOf(program), own);
    EXPECT_EQ(changes.size(), 1);
}

TEST(RestoreCustom, GoesToTheEndOfAListThatHasBecomeShort)
{
    const QList<Shortcut> own{makeShortcut(u"a"_s), makeShortcut(u"b"_s), makeShortcut(u"c"_s)};
    Program program({.stored = storedCustom(own)});
    const DeletedCustom last = program.model().deleteCustom(own.at(2));
    program.model().deleteCustom(own.at(0));
    program.model().deleteCustom(own.at(1));
    program.model().addCustom(u"New"_s, {u"⌘"_s}, Category::text, {}, {});
    program.model().restoreCustom(last);
    EXPECT_EQ(program.model().customShortcuts().size(), 2);
    EXPECT_EQ(program.model().customShortcuts().last(), own.at(2));
}

TEST(RestoreCustom, MakesItAFavoriteAgainAlsoInTheStore)
{
    QJsonObject stored = storedCustom({makeShortcut(u"custom-1"_s)});
    stored[u"favorites"_s] = QJsonArray{u"copy"_s, u"custom-1"_s};
    Program program({.stored = stored});
    const DeletedCustom deleted = program.model().deleteCustom(makeShortcut(u"custom-1"_s));
    program.model().toggleFavorite(u"redo"_s);
    const QSignalSpy changes(&program.model(), &AppModel::favoritesChanged);
    program.model().restoreCustom(deleted);
    EXPECT_EQ(program.model().favorites(), (QSet<QString>{u"copy"_s, u"redo"_s, u"custom-1"_s}));
    EXPECT_EQ(storedFavorites(program), program.model().favorites());
    EXPECT_EQ(changes.size(), 1);
}

TEST(RestoreCustom, LeavesAloneWhatCameBackMeanwhile)
{
    Program program({.stored = storedCustom({makeShortcut(u"a"_s, u"1"_s), makeShortcut(u"b"_s)})});
    const QByteArray backup = program.model().exportBackup();
    const DeletedCustom deleted = program.model().deleteCustom(makeShortcut(u"a"_s));
    ASSERT_TRUE(program.model().importBackup(backup));
    program.model().restoreCustom(deleted);
    EXPECT_EQ(idsOf(program.model().customShortcuts()), (QStringList{u"b"_s, u"a"_s}));
}

TEST(RestoreCustom, OfNothingDoesNothing)
{
    Program program;
    const DeletedCustom deleted = program.model().deleteCustom(makeShortcut(u"no such id"_s));
    const QSignalSpy changes(&program.model(), &AppModel::customShortcutsChanged);
    program.model().restoreCustom(deleted);
    EXPECT_EQ(changes.size(), 0);
}

TEST(DeleteCustom, KeepsUsageCountsAndPracticeStatistics)
{
    QJsonObject stored = storedCustom({makeShortcut(u"custom-1"_s)});
    stored[u"usageCounts"_s] = QJsonObject{{u"custom-1"_s, 3}};
    stored[u"practiceStats"_s] = QJsonObject{{u"custom-1"_s, QJsonObject{{u"seen"_s, 1}, {u"wrong"_s, 1}}}};
    Program program({.stored = stored});
    program.model().deleteCustom(makeShortcut(u"custom-1"_s));
    EXPECT_EQ(program.model().usageCounts().value(u"custom-1"_s), 3);
    EXPECT_EQ(program.model().practiceStats().value(u"custom-1"_s).seen, 1);
    stored[u"customShortcuts"_s] = QJsonArray();
    EXPECT_EQ(program.stored(), stored);
}

} // namespace keyvora
