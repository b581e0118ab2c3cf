// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/ShortcutLibrary.h"

#include "unit/model/ModelPrinters.h"
#include "unit/model/Program.h"

#include <QRegularExpression>

#include <algorithm>
#include <gtest/gtest.h>

namespace keyvora {

namespace {

/// The rows of the reference catalog, each split into its columns.
QList<QStringList> referenceRows()
{
    QFile file(QStringLiteral(KEYVORA_TEST_DATA "/catalog/catalog.tsv"));
    QList<QStringList> rows;
    if (!file.open(QIODevice::ReadOnly))
        return rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        rows.append(line.split(u'\t'));
    return rows;
}

QStringList columnsOf(const ShortcutSeed &seed)
{
    return {seed.id,      seed.keys.join(u' '), rawValue(seed.category), seed.apps.join(u'|'),
            seed.titleCS, seed.titleEN};
}

const ShortcutSeed *seedWithId(const QString &id)
{
    const auto found = std::ranges::find(ShortcutLibrary::seeds(), id, &ShortcutSeed::id);
    return found == ShortcutLibrary::seeds().end() ? nullptr : &*found;
}

void expectOneSentence(const QString &detail, const ShortcutSeed &seed)
{
    static const QRegularExpression sentence(u"\\A\\p{Lu}[^.!?\\n\\t]*[^.!?\\s]\\.\\z"_s);
    EXPECT_TRUE(sentence.match(detail).hasMatch()) << seed.id.toStdString() << ": " << detail.toStdString();
    EXPECT_FALSE(detail.contains("  "_L1)) << seed.id.toStdString();
}

} // namespace

TEST(ShortcutLibrary, AgreesWithTheReferenceCatalogRowByRow)
{
    const QList<QStringList> reference = referenceRows();
    ASSERT_EQ(reference.size(), 114);
    ASSERT_EQ(ShortcutLibrary::seeds().size(), 114);
    for (qsizetype i = 0; i < reference.size(); ++i)
        EXPECT_EQ(columnsOf(ShortcutLibrary::seeds().at(i)), reference.at(i));
}

TEST(ShortcutLibrary, HoldsTheKnownNumberOfShortcutsOfEachCategory)
{
    QHash<QString, int> counts;
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds())
        ++counts[rawValue(seed.category)];
    const QHash<QString, int> expected{
        {u"Základy"_s, 12},
        {u"Text"_s, 17},
        {u"Okna a aplikace"_s, 15},
        {u"Finder"_s, 18},
        {u"Prohlížeč"_s, 11},
        {u"Snímky obrazovky"_s, 4},
        {u"Profesionální nástroje"_s, 37},
    };
    EXPECT_EQ(counts, expected);
}

TEST(ShortcutLibrary, IdentifiesEachRowByALowerCaseSlugOfItsOwn)
{
    static const QRegularExpression slug(u"\\A[a-z]+(-[a-z]+)*\\z"_s);
    QSet<QString> ids;
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        EXPECT_TRUE(slug.match(seed.id).hasMatch()) << seed.id.toStdString();
        ids.insert(seed.id);
    }
    EXPECT_EQ(ids.size(), ShortcutLibrary::seeds().size());
}

TEST(ShortcutLibrary, WritesKeysInTheNotationOfKeyCaps)
{
    static const QRegularExpression token(
        u"\\A([⌘⇧⌥⌃A-Z0-9,./`+−←→↑↓]|Fn|F2|F11|Space|Tab|Esc|Return|Delete)\\z"_s);
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        EXPECT_FALSE(seed.keys.isEmpty()) << seed.id.toStdString();
        for (const QString &key : seed.keys)
            EXPECT_TRUE(token.match(key).hasMatch()) << seed.id.toStdString() << ' ' << key.toStdString();
    }
}

TEST(ShortcutLibrary, DescribesEachShortcutInOneSentencePerLanguage)
{
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        expectOneSentence(seed.detailCS, seed);
        expectOneSentence(seed.detailEN, seed);
        EXPECT_NE(seed.detailCS, seed.detailEN) << seed.id.toStdString();
    }
}

TEST(ShortcutLibrary, GivesNoTwoShortcutsOfALanguageTheSameDescription)
{
    QSet<QString> czech;
    QSet<QString> english;
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        EXPECT_FALSE(czech.contains(seed.detailCS)) << seed.id.toStdString();
        EXPECT_FALSE(english.contains(seed.detailEN)) << seed.id.toStdString();
        czech.insert(seed.detailCS);
        english.insert(seed.detailEN);
    }
}

TEST(ShortcutLibrary, DescribesTheFirstShortcutsInTheSettledWords)
{
    struct Words
    {
        QString id;
        QString czech;
        QString english;
    };
    const QList<Words> settled{
        {u"copy"_s, u"Zkopíruje vybraný text nebo soubor."_s, u"Copies the selected text or file."_s},
        {u"paste"_s, u"Vloží obsah schránky."_s, u"Pastes the clipboard contents."_s},
        {u"undo"_s, u"Vrátí poslední provedenou akci."_s, u"Reverts the last action."_s},
        {u"redo"_s, u"Znovu provede vrácenou akci."_s, u"Redoes the undone action."_s},
        {u"save"_s, u"Uloží aktuální dokument."_s, u"Saves the current document."_s},
        {u"select-all"_s, u"Vybere veškerý obsah."_s, u"Selects all content."_s},
        {u"find"_s, u"Vyhledá text v aktuálním dokumentu nebo stránce."_s,
         u"Searches for text in the current document or page."_s},
        {u"spotlight"_s, u"Rychle najde aplikaci, soubor nebo informaci."_s,
         u"Quickly finds an app, file, or piece of information."_s},
    };
    for (const Words &words : settled) {
        const ShortcutSeed *seed = seedWithId(words.id);
        ASSERT_NE(seed, nullptr) << words.id.toStdString();
        EXPECT_EQ(seed->detailCS, words.czech);
        EXPECT_EQ(seed->detailEN, words.english);
    }
    const ShortcutSeed *missionControl = seedWithId(u"mission-control"_s);
    ASSERT_NE(missionControl, nullptr);
    EXPECT_EQ(missionControl->detailEN, u"Shows all open windows and desktops."_s);
}

TEST(ShortcutLibrary, TurnsEachSeedIntoARecordOfTheLanguage)
{
    const QList<Shortcut> &czech = ShortcutLibrary::all(AppLanguage::Czech);
    const QList<Shortcut> &english = ShortcutLibrary::all(AppLanguage::English);
    ASSERT_EQ(czech.size(), 114);
    ASSERT_EQ(english.size(), 114);
    for (qsizetype i = 0; i < czech.size(); ++i) {
        const ShortcutSeed &seed = ShortcutLibrary::seeds().at(i);
        EXPECT_EQ(czech.at(i),
                  makeShortcut(seed.id, seed.titleCS, seed.keys, seed.apps, seed.detailCS, seed.category));
        EXPECT_EQ(english.at(i),
                  makeShortcut(seed.id, seed.titleEN, seed.keys, seed.apps, seed.detailEN, seed.category));
    }
}

TEST(ShortcutLibrary, BuildsEachLanguageOnce)
{
    const QList<Shortcut> czech = ShortcutLibrary::all(AppLanguage::Czech);
    const QList<Shortcut> english = ShortcutLibrary::all(AppLanguage::English);
    EXPECT_TRUE(ShortcutLibrary::all(AppLanguage::Czech).isSharedWith(czech));
    EXPECT_TRUE(ShortcutLibrary::all(AppLanguage::English).isSharedWith(english));
    EXPECT_EQ(&ShortcutLibrary::seeds(), &ShortcutLibrary::seeds());
}

} // namespace keyvora
