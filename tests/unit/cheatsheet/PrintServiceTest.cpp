// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintService.h"

#include "cheatsheet/PrintKeyCaps.h"
#include "cheatsheet/StickerList.h"
#include "model/ShortcutLibrary.h"
#include "platform/MakersDomain.h"
#include "unit/QtPrinters.h"
#include "unit/cheatsheet/PdfTools.h"
#include "unit/cheatsheet/Sheets.h"

#include <QHashSeed>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

QByteArray documentOf(CheatSheetSize size, const QList<Shortcut> &shortcuts)
{
    const PrintService service([] { return QDateTime({2023, 11, 14}, {22, 13, 20}, Qt::UTC); });
    const auto document = service.makePDF(size, shortcuts);
    EXPECT_TRUE(document);
    return document.value_or(QByteArray());
}

QString mediaBox(QSize size)
{
    return u"0.00 0.00 %1.00 %2.00"_s.arg(size.width()).arg(size.height());
}

} // namespace

TEST(PrintService, MakesOnePageAsLargeAsTheSheet)
{
    const Speaking language(AppLanguage::English);
    const QList<Shortcut> list = stickerList(AppLanguage::English);
    for (const CheatSheetSize size : allCheatSheetSizes) {
        const PdfTools tools(documentOf(size, list));
        EXPECT_EQ(tools.info(u"Pages"_s), u"1"_s);
        EXPECT_EQ(tools.info(u"MediaBox"_s), mediaBox(PrintableCheatSheetView(list, size).size()));
    }
    EXPECT_EQ(PdfTools(documentOf(CheatSheetSize::wallet, list)).info(u"MediaBox"_s), mediaBox({243, 153}));
}

TEST(PrintService, WritesTextAsText)
{
    Speaking language(AppLanguage::Czech);
    for (const AppLanguage spoken : allLanguages) {
        language.speak(spoken);
        const QString text =
            PdfTools(documentOf(CheatSheetSize::a4, ShortcutLibrary::all(spoken))).text().simplified();
        for (const Shortcut &shortcut : ShortcutLibrary::all(spoken))
            EXPECT_TRUE(text.contains(shortcut.title)) << shortcut.title.toStdString();
        EXPECT_TRUE(text.contains(Localization::shared().text(u"Nejdůležitější klávesové zkratky"_s,
                                                              u"Essential Keyboard Shortcuts"_s)));
        EXPECT_TRUE(text.contains(u"Keyvora — "_s + makersDomain()));
    }
}

TEST(PrintService, WritesEveryKeyAsText)
{
    const Speaking language(AppLanguage::Czech);
    QList<Shortcut> list = ShortcutLibrary::all(AppLanguage::Czech);
    for (qsizetype i = 0; i < list.size(); ++i)
        list[i].title = u"Title%1"_s.arg(i);
    const QString text = PdfTools(documentOf(CheatSheetSize::usLetter, list)).text().simplified();
    for (const Shortcut &shortcut : list) {
        QStringList expected{shortcut.title};
        for (const QString &token : shortcut.keys)
            expected.append(PrintKeyCaps::label(token));
        EXPECT_TRUE(text.contains(expected.join(u' '))) << expected.join(u' ').toStdString();
    }
}

TEST(PrintService, WritesTextAsItIsWhateverStandsAround)
{
    const Speaking language(AppLanguage::English);
    const QString title = u"Zoom (A-B) -> 10:30 2x3 @X fi"_s;
    EXPECT_TRUE(PdfTools(documentOf(CheatSheetSize::a4, {entry(title)})).text().contains(title));
}

TEST(PrintService, EmbedsItsFontsInPart)
{
    const Speaking language(AppLanguage::Czech);
    static const QRegularExpression embeddedInPart(u"^[A-Z]{6}\\+Inter-.* yes yes yes "_s);
    const QByteArray document = documentOf(CheatSheetSize::a4, ShortcutLibrary::all(AppLanguage::Czech));
    const QStringList fonts = PdfTools(document).fonts();
    EXPECT_EQ(fonts.size(), 4);
    for (const QString &font : fonts)
        EXPECT_TRUE(font.contains(embeddedInPart)) << font.toStdString();
    // Four whole fonts would be over two million bytes.
    EXPECT_LT(document.size(), 150'000);
}

TEST(PrintService, DrawsNoPictures)
{
    const Speaking language(AppLanguage::Czech);
    for (const CheatSheetSize size : allCheatSheetSizes)
        EXPECT_TRUE(PdfTools(documentOf(size, stickerList(AppLanguage::Czech))).images().isEmpty());
}

TEST(PrintService, DrawsColouredEmojiAsPictures)
{
    const Speaking language(AppLanguage::English);
    EXPECT_FALSE(PdfTools(documentOf(CheatSheetSize::a4, {entry(u"Party 🎉"_s)})).images().isEmpty());
}

TEST(PrintService, SaysWhatTheDocumentIs)
{
    const Speaking language(AppLanguage::Czech);
    const PdfTools tools(documentOf(CheatSheetSize::a4, entries(1)));
    EXPECT_EQ(tools.info(u"Title"_s), u"Nejdůležitější klávesové zkratky"_s);
    EXPECT_EQ(tools.info(u"Author"_s), u"Keyvora"_s);
    EXPECT_EQ(tools.info(u"CreationDate"_s), u"D:20231114221320Z"_s);
}

TEST(PrintService, WritesWhatOtherProgramsAccept)
{
    const Speaking language(AppLanguage::English);
    for (const CheatSheetSize size : allCheatSheetSizes)
        EXPECT_TRUE(PdfTools(documentOf(size, entries(5)))
                        .check()
                        .contains(u"No syntax or stream encoding errors"_s));
}

TEST(PrintService, MakesTheSameBytesOfTheSameSheet)
{
    const Speaking language(AppLanguage::Czech);
    QList<Shortcut> list = stickerList(AppLanguage::Czech);
    list.append(entry(u"مرحبا (A) עברית ☃ 🎉"_s));
    QSet<QByteArray> documents;
    for (int round = 0; round < 8; ++round) {
        QHashSeed::resetRandomGlobalSeed();
        documents.insert(documentOf(CheatSheetSize::a4, list));
    }
    EXPECT_EQ(documents.size(), 1);
}

TEST(PrintService, AsksForTheTimeWithEveryDocument)
{
    const Speaking language(AppLanguage::English);
    QDateTime now({2023, 11, 14}, {22, 13, 20}, Qt::UTC);
    const PrintService service([&now] { return now; });
    const auto first = service.makePDF(CheatSheetSize::a4, {});
    now = now.addSecs(1);
    const auto second = service.makePDF(CheatSheetSize::a4, {});
    ASSERT_TRUE(first && second);
    EXPECT_TRUE(first->contains("D:20231114221320Z"));
    EXPECT_TRUE(second->contains("D:20231114221321Z"));
}

TEST(PrintService, MakesOneTallPageOfALongList)
{
    const Speaking language(AppLanguage::English);
    const QByteArray document = documentOf(CheatSheetSize::a4, entries(500));
    const PdfTools tools(document);
    EXPECT_EQ(tools.info(u"Pages"_s), u"1"_s);
    EXPECT_EQ(tools.info(u"MediaBox"_s),
              mediaBox(PrintableCheatSheetView(entries(500), CheatSheetSize::a4).size()));
    EXPECT_TRUE(tools.text().contains(u"Title 500"_s));
    EXPECT_LT(document.size(), 500 * 1024);
}

TEST(PrintService, CountsAPageBeyondTheLimitInLargerUnits)
{
    const Speaking language(AppLanguage::English);
    const QList<Shortcut> list = entries(1000);
    const int height = PrintableCheatSheetView(list, CheatSheetSize::a4).size().height();
    ASSERT_GT(height, 14'400);
    const QByteArray document = documentOf(CheatSheetSize::a4, list);
    const PdfTools tools(document);
    EXPECT_EQ(tools.info(u"Pages"_s), u"1"_s);
    EXPECT_TRUE(tools.info(u"MediaBox"_s).endsWith(u" 14400.00"_s));
    static const QRegularExpression unit(u"/UserUnit ([0-9.]+)"_s);
    const QString factor = unit.match(QString::fromLatin1(document)).captured(1);
    EXPECT_NEAR(factor.toDouble() * 14'400, height, 0.1);
    EXPECT_TRUE(tools.text().contains(u"Title 1000"_s));
}

TEST(PrintService, MakesADocumentOfForeignTexts)
{
    const Speaking language(AppLanguage::English);
    const PdfTools tools(
        documentOf(CheatSheetSize::a4, {
                                           entry(u"<b>1 0 R</b> endobj (x\\) %"_s, {u"<<>>"_s}),
                                           entry(QString(QChar(0xD800)) + u"lone"_s),
                                           entry(u"مرحبا"_s),
                                       }));
    EXPECT_TRUE(tools.check().contains(u"No syntax or stream encoding errors"_s));
    EXPECT_TRUE(tools.text().contains(u"<b>1 0 R</b> endobj (x\\) %"_s)) << tools.text().toStdString();
}

} // namespace keyvora
