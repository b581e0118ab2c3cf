// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/AppModel.h"
#include "model/Backup.h"
#include "unit/model/Program.h"

#include <QJsonArray>
#include <QSignalSpy>

#include <algorithm>
#include <gtest/gtest.h>

namespace keyvora {

namespace {

/// A program with these shortcuts of the user's own, and with these favourites.
Program::Start with(const QList<Shortcut> &own, const QStringList &favorites)
{
    QJsonObject stored = storedCustom(own);
    stored[u"favorites"_s] = QJsonArray::fromStringList(favorites);
    return {.stored = stored};
}

QByteArray bytesOf(const QList<Shortcut> &shortcuts, const QStringList &favorites = {})
{
    return encodeBackup({shortcuts, favorites});
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

QStringList storedFavorites(const Program &program)
{
    QStringList ids;
    for (const QJsonValue &id : program.stored()[u"favorites"_s].toArray())
        ids.append(id.toString());
    return sorted(ids);
}

std::optional<QList<Shortcut>> storedShortcuts(const Program &program)
{
    return decodeShortcuts(QJsonDocument(program.stored()[u"customShortcuts"_s].toArray()).toJson());
}

/// The signals of changes that a backup can make.
struct Changes
{
    explicit Changes(Program &program)
        : shortcuts(&program.model(), &AppModel::customShortcutsChanged)
        , favorites(&program.model(), &AppModel::favoritesChanged)
    {
    }

    QSignalSpy shortcuts;
    QSignalSpy favorites;
};

/// That this is refused, and nothing changes.
void expectRefusal(Program &program, const QByteArray &json)
{
    const Changes changes(program);
    const QList<Shortcut> shortcuts = program.model().customShortcuts();
    const QSet<QString> favorites = program.model().favorites();
    const QJsonObject stored = program.stored();
    EXPECT_FALSE(program.model().importBackup(json));
    EXPECT_EQ(program.model().customShortcuts(), shortcuts);
    EXPECT_EQ(program.model().favorites(), favorites);
    EXPECT_EQ(program.stored(), stored);
    EXPECT_TRUE(changes.shortcuts.isEmpty());
    EXPECT_TRUE(changes.favorites.isEmpty());
}

} // namespace

TEST(ExportBackup, HoldsOwnShortcutsAndFavoritesAlone)
{
    const QList<Shortcut> own{makeShortcut(u"b"_s, u"B"_s), makeShortcut(u"a"_s, u"A"_s)};
    Program program(with(own, {u"redo"_s, u"gone"_s, u"b"_s}));
    const QJsonDocument json = QJsonDocument::fromJson(program.model().exportBackup());
    EXPECT_EQ(json.object().keys(), (QStringList{u"customShortcuts"_s, u"favorites"_s}));
    EXPECT_EQ(json[u"customShortcuts"_s], (QJsonArray{toJson(own.at(0)), toJson(own.at(1))}));
    EXPECT_EQ(json[u"favorites"_s], (QJsonArray{u"b"_s, u"gone"_s, u"redo"_s}));
}

TEST(ExportBackup, ChangesNothing)
{
    Program program(with({makeShortcut(u"a"_s)}, {u"redo"_s}));
    const QJsonObject stored = program.stored();
    EXPECT_FALSE(program.model().exportBackup().isEmpty());
    EXPECT_EQ(program.stored(), stored);
}

TEST(ImportBackup, OfWhatWasJustExportedChangesNothing)
{
    Program program(
        with({makeShortcut(u"a"_s, u"1"_s), makeShortcut(u"a"_s, u"2"_s)}, {u"redo"_s, u"gone"_s}));
    const Changes changes(program);
    const AppModel::Backup before = program.model().backup();
    const QJsonObject stored = program.stored();
    EXPECT_TRUE(program.model().importBackup(program.model().exportBackup()));
    EXPECT_EQ(program.model().backup(), before);
    EXPECT_EQ(program.stored()[u"customShortcuts"_s], stored[u"customShortcuts"_s]);
    EXPECT_EQ(storedFavorites(program), (QStringList{u"gone"_s, u"redo"_s}));
    EXPECT_TRUE(changes.shortcuts.isEmpty());
    EXPECT_TRUE(changes.favorites.isEmpty());
}

TEST(ImportBackup, CarriesEverythingToAnotherComputer)
{
    Program old(with({makeShortcut(u"a"_s, u"1"_s, {u"⌘"_s}), makeShortcut(u"b"_s)}, {u"redo"_s, u"a"_s}));
    const QByteArray json = old.model().exportBackup();
    const AppModel::Backup expected = old.model().backup();
    old.end();
    Program other(with({}, {}));
    const Changes changes(other);
    EXPECT_TRUE(other.model().importBackup(json));
    EXPECT_EQ(other.model().backup(), expected);
    EXPECT_EQ(storedShortcuts(other), expected.customShortcuts);
    EXPECT_EQ(storedFavorites(other), expected.favorites);
    EXPECT_EQ(changes.shortcuts.size(), 1);
    EXPECT_EQ(changes.favorites.size(), 1);
    other.restart();
    EXPECT_EQ(other.model().backup(), expected);
}

TEST(ImportBackup, AppendsNewShortcutsInTheOrderOfTheFile)
{
    Program program(with({makeShortcut(u"m"_s)}, {}));
    EXPECT_TRUE(program.model().importBackup(
        bytesOf({makeShortcut(u"z"_s), makeShortcut(u"m"_s, u"other"_s), makeShortcut(u"a"_s)})));
    EXPECT_EQ(idsOf(program.model().customShortcuts()), (QStringList{u"m"_s, u"z"_s, u"a"_s}));
    EXPECT_EQ(storedShortcuts(program), program.model().customShortcuts());
}

TEST(ImportBackup, KeepsWhatIsThereUnderTheSameId)
{
    const Shortcut own = makeShortcut(u"a"_s, u"Mine"_s, {u"⌘"_s, u"1"_s});
    Program program(with({own}, {}));
    const Changes changes(program);
    EXPECT_TRUE(program.model().importBackup(bytesOf({makeShortcut(u"a"_s, u"Theirs"_s)})));
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{own});
    EXPECT_TRUE(changes.shortcuts.isEmpty());
}

TEST(ImportBackup, TakesAllOfTheFileThatShareANewId)
{
    Program program(with({makeShortcut(u"a"_s)}, {}));
    const QList<Shortcut> theirs{makeShortcut(u"b"_s, u"1"_s), makeShortcut(u"b"_s, u"2"_s),
                                 makeShortcut(u"b"_s, u"1"_s)};
    EXPECT_TRUE(program.model().importBackup(bytesOf(theirs)));
    EXPECT_EQ(program.model().customShortcuts().mid(1), theirs);
}

TEST(ImportBackup, DoesNotAskTheCatalog)
{
    Program program(with({}, {}));
    const Shortcut first = program.model().allShortcuts().first();
    EXPECT_TRUE(program.model().importBackup(bytesOf({first})));
    EXPECT_EQ(program.model().customShortcuts(), QList<Shortcut>{first});
}

TEST(ImportBackup, TellsIdsApartThatLookAlike)
{
    const QString composed = u"é"_s;
    Program program(with({makeShortcut(composed)}, {}));
    EXPECT_TRUE(program.model().importBackup(
        bytesOf({makeShortcut(composed.normalized(QString::NormalizationForm_D)), makeShortcut(composed)})));
    EXPECT_EQ(program.model().customShortcuts().size(), 2);
}

TEST(ImportBackup, OnlyAddsFavorites)
{
    Program program(with({}, {u"redo"_s, u"copy"_s}));
    const Changes changes(program);
    EXPECT_TRUE(
        program.model().importBackup(bytesOf({}, {u"no-such"_s, u"copy"_s, u"paste"_s, u"no-such"_s})));
    const QStringList expected{u"copy"_s, u"no-such"_s, u"paste"_s, u"redo"_s};
    EXPECT_EQ(program.model().backup().favorites, expected);
    EXPECT_EQ(storedFavorites(program), expected);
    EXPECT_EQ(changes.favorites.size(), 1);
    EXPECT_TRUE(changes.shortcuts.isEmpty());
}

TEST(ImportBackup, OfTwoEmptyListsChangesNothing)
{
    Program program(with({makeShortcut(u"a"_s)}, {u"redo"_s}));
    const Changes changes(program);
    const AppModel::Backup before = program.model().backup();
    EXPECT_TRUE(program.model().importBackup(R"({"customShortcuts":[],"favorites":[]})"));
    EXPECT_EQ(program.model().backup(), before);
    EXPECT_TRUE(changes.shortcuts.isEmpty());
    EXPECT_TRUE(changes.favorites.isEmpty());
}

TEST(ImportBackup, StoresWhatAnEarlierRemovalLeftInTheStore)
{
    Program program(with({makeShortcut(u"a"_s)}, {u"a"_s, u"redo"_s}));
    program.model().deleteCustom(makeShortcut(u"a"_s));
    EXPECT_EQ(storedFavorites(program), (QStringList{u"a"_s, u"redo"_s}));
    EXPECT_TRUE(program.model().importBackup(bytesOf({})));
    EXPECT_EQ(storedFavorites(program), QStringList{u"redo"_s});
}

TEST(ImportBackup, StoresDefaultFavorites)
{
    Program program;
    EXPECT_TRUE(program.model().importBackup(bytesOf({}, {u"redo"_s})));
    EXPECT_EQ(storedFavorites(program),
              (QStringList{u"copy"_s, u"paste"_s, u"redo"_s, u"shot-area"_s, u"spotlight"_s}));
}

TEST(ImportBackup, LeavesTheRestOfTheStoreAlone)
{
    QJsonObject stored{{u"usageCounts"_s, QJsonObject{{u"eject"_s, 3}}}, {u"from a newer one"_s, u"x"_s}};
    Program program({.stored = stored});
    EXPECT_TRUE(program.model().importBackup(bytesOf({makeShortcut(u"a"_s)})));
    EXPECT_EQ(program.stored()[u"usageCounts"_s], stored[u"usageCounts"_s]);
    EXPECT_EQ(program.stored()[u"from a newer one"_s], stored[u"from a newer one"_s]);
}

TEST(ImportBackup, RefusesTheWholeFileForAnyMistake)
{
    Program program(with({makeShortcut(u"a"_s)}, {u"redo"_s}));
    const QByteArray good =
        QJsonDocument(QJsonArray{toJson(makeShortcut(u"b"_s))}).toJson(QJsonDocument::Compact);
    for (const QByteArray &json : {
             QByteArray(),
             QByteArray("{}"),
             R"({"customShortcuts":)" + good + '}',
             R"({"customShortcuts":)" + good + R"(,"favorites":1})",
             R"({"customShortcuts":)" + good + R"(,"favorites":["copy",1]})",
             QByteArray(R"({"customShortcuts":1,"favorites":["copy"]})"),
             QByteArray(R"({"customShortcuts":[{"id":"c"}],"favorites":["copy"]})"),
             R"({"customShortcuts":)" + good + R"(,"favorites":["copy"]}x)",
             R"({"customShortcuts":)" + good + R"(,"favorites":["copy"])",
         }) {
        SCOPED_TRACE(json.toStdString());
        expectRefusal(program, json);
    }
}

TEST(ImportBackup, NeverLetsTheStoreGrowBeyondWhatTheNextStartReads)
{
    // Control characters take the most room in the store: six bytes each.
    const auto large = [](QChar letter) {
        return bytesOf({makeShortcut(QString(letter), QString(BackupLimits::textBytes / 10, u'\x01'))});
    };
    Program program(with({}, {}));
    EXPECT_TRUE(program.model().importBackup(large(u'a')));
    expectRefusal(program, large(u'b'));
    // Nothing new needs no room.
    EXPECT_TRUE(program.model().importBackup(large(u'a')));
    EXPECT_LT(QFileInfo(program.storePath()).size(), Defaults::maximumFileBytes);
    program.restart();
    EXPECT_EQ(idsOf(program.model().customShortcuts()), QStringList{u"a"_s});
}

TEST(ImportBackup, HasEverythingStoredBeforeItTells)
{
    Program program(with({}, {}));
    int told = 0;
    const auto check = [&] {
        EXPECT_EQ(idsOf(program.model().customShortcuts()), QStringList{u"a"_s});
        EXPECT_EQ(program.model().favorites(), QSet<QString>{u"redo"_s});
        EXPECT_EQ(storedShortcuts(program), program.model().customShortcuts());
        EXPECT_EQ(storedFavorites(program), QStringList{u"redo"_s});
        ++told;
    };
    QObject::connect(&program.model(), &AppModel::customShortcutsChanged, &program.model(), check);
    QObject::connect(&program.model(), &AppModel::favoritesChanged, &program.model(), check);
    EXPECT_TRUE(program.model().importBackup(bytesOf({makeShortcut(u"a"_s)}, {u"redo"_s})));
    EXPECT_EQ(told, 2);
}

} // namespace keyvora
