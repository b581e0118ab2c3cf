// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintableCheatSheetView.h"

#include "cheatsheet/StickerList.h"
#include "cheatsheet/Typesetter.h"
#include "cheatsheet/WalletCard.h"
#include "model/ShortcutLibrary.h"
#include "platform/MakersDomain.h"
#include "unit/QtPrinters.h"
#include "unit/cheatsheet/Sheets.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSet>

#include <gtest/gtest.h>

namespace keyvora {

namespace {

constexpr qreal cellOpacity = 0.22;

/// The cells' outlines, without those of the caps.
QList<QRectF> cellsOf(const PrintableCheatSheetView &view)
{
    QList<QRectF> cells;
    for (const SheetOutline &outline : view.elements().outlines) {
        if (outline.opacity == cellOpacity)
            cells.append(outline.rect);
    }
    return cells;
}

QSet<qreal> topsOf(const QList<QRectF> &rects)
{
    QSet<qreal> tops;
    for (const QRectF &rect : rects)
        tops.insert(rect.top());
    return tops;
}

/// Everything that is drawn keeps this far from the page's edges.
void expectInside(const PrintableCheatSheetView &view, qreal padding)
{
    const QRectF area = QRectF(QPointF(), QSizeF(view.size())).adjusted(padding, padding, -padding, -padding);
    const QRectF allowed = area.adjusted(-0.01, -0.01, 0.01, 0.01);
    for (const SheetOutline &outline : view.elements().outlines)
        EXPECT_TRUE(allowed.contains(outline.rect));
    for (const SheetRule &rule : view.elements().rules)
        EXPECT_TRUE(allowed.contains(rule.rect));
    for (const QRectF &sign : view.elements().signs)
        EXPECT_TRUE(allowed.contains(sign));
    for (const SheetText &text : view.elements().texts) {
        EXPECT_GE(text.baseline.x(), allowed.left()) << text.line.text.toStdString();
        EXPECT_LE(text.baseline.x() + text.line.width, allowed.right()) << text.line.text.toStdString();
        EXPECT_LE(text.baseline.y(), allowed.bottom()) << text.line.text.toStdString();
    }
}

/// No text reaches into a cap but the cap's own.
void expectNoOverlap(const PrintableCheatSheetView &view)
{
    for (const SheetOutline &outline : view.elements().outlines) {
        if (outline.opacity == cellOpacity)
            continue;
        int inside = 0;
        for (const SheetText &text : view.elements().texts) {
            if (outline.rect.intersects(boundsOf(text)))
                ++inside;
        }
        EXPECT_LE(inside, 1);
    }
}

bool hasInk(const QImage &image, const QRect &area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(StandardSheet, DrawsExactlyTheListInItsOrder)
{
    const Speaking language(AppLanguage::English);
    const QList<Shortcut> list{entry(u"Zebra"_s, {u"Z"_s}), entry(u"Apple"_s, {u"A"_s}),
                               entry(u"Zebra"_s, {u"Q"_s})};
    for (const CheatSheetSize size : {CheatSheetSize::a4, CheatSheetSize::usLetter})
        EXPECT_EQ(
            textsOf(PrintableCheatSheetView(list, size).elements()),
            (QStringList{u"Keyvora"_s, u"Essential Keyboard Shortcuts"_s, u"Zebra"_s, u"Z"_s, u"Apple"_s,
                         u"A"_s, u"Zebra"_s, u"Q"_s, u"Made with Keyvora — "_s + makersDomain()}));
}

TEST(StandardSheet, SpeaksTheInterfaceLanguage)
{
    Speaking language(AppLanguage::Czech);
    const QList<Shortcut> list{entry(u"Náhled"_s, {u"Space"_s})};
    const PrintableCheatSheetView czech(list, CheatSheetSize::a4);
    language.speak(AppLanguage::English);
    EXPECT_EQ(textsOf(czech.elements()),
              (QStringList{u"Keyvora"_s, u"Nejdůležitější klávesové zkratky"_s, u"Náhled"_s, u"Mezerník"_s,
                           u"Vytvořeno aplikací Keyvora — "_s + makersDomain()}));
    EXPECT_TRUE(textsOf(PrintableCheatSheetView(list, CheatSheetSize::a4).elements()).contains(u"Space"_s));
}

TEST(StandardSheet, IsAsWideAsThePaperAndAsHighAsItsContent)
{
    const Speaking language(AppLanguage::English);
    for (const CheatSheetSize size : {CheatSheetSize::a4, CheatSheetSize::usLetter}) {
        int height = 0;
        for (const int count : {0, 1, 3, 24, 114}) {
            const PrintableCheatSheetView view(entries(count), size);
            EXPECT_EQ(view.size().width(), paperSize(size).width());
            EXPECT_GT(view.size().height(), height) << count;
            height = view.size().height();
            expectInside(view, 28);
        }
        EXPECT_EQ(PrintableCheatSheetView(entries(23), size).size(),
                  PrintableCheatSheetView(entries(24), size).size());
    }
}

TEST(StandardSheet, PutsTwentyFourShortcutsIntoTwelveRows)
{
    const Speaking language(AppLanguage::English);
    const auto cells =
        cellsOf(PrintableCheatSheetView(stickerList(AppLanguage::English), CheatSheetSize::a4));
    EXPECT_EQ(cells.size(), 24);
    EXPECT_EQ(topsOf(cells).size(), 12);
    EXPECT_EQ(cells.at(0).top(), cells.at(1).top());
    EXPECT_NEAR(cells.at(1).left() - cells.at(0).right(), 12, 1e-6);
    EXPECT_NEAR(cells.at(2).top() - cells.at(0).bottom(), 10, 1e-6);
    EXPECT_EQ(cells.at(0).left(), 28);
    EXPECT_EQ(cells.at(1).right(), 595 - 28);
}

TEST(StandardSheet, IsHeaderRuleAndFooterWithoutShortcuts)
{
    const Speaking language(AppLanguage::English);
    const PrintableCheatSheetView view({}, CheatSheetSize::a4);
    EXPECT_EQ(view.elements().texts.size(), 3);
    EXPECT_TRUE(view.elements().outlines.isEmpty());
    ASSERT_EQ(view.elements().rules.size(), 1);
    EXPECT_EQ(view.elements().rules.constFirst().rect, QRectF(28, 28 + 22 + 18, 595 - 56, 1));
    EXPECT_EQ(view.elements().rules.constFirst().opacity, 0.2);
    EXPECT_EQ(view.elements().signs, QList<QRectF>{QRectF(28, 28, 22, 22)});
}

TEST(StandardSheet, SetsItsTextsInTheirSizesAndShades)
{
    const Speaking language(AppLanguage::English);
    const SheetElements elements = PrintableCheatSheetView({entry(u"Copy"_s)}, CheatSheetSize::a4).elements();
    const QList<std::pair<qreal, qreal>> expected{{18, 1}, {11, 0.6}, {9, 1}, {10, 1}, {10, 1}, {9, 0.45}};
    ASSERT_EQ(elements.texts.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i)
        EXPECT_EQ(std::pair(elements.texts.at(i).line.style.size, elements.texts.at(i).opacity),
                  expected.at(i))
            << i;
}

TEST(StandardSheet, WrapsALongTitleBesideItsKeys)
{
    const Speaking language(AppLanguage::English);
    const QString title = u"Show or hide the panel with everything that was opened lately"_s;
    const PrintableCheatSheetView view({entry(title, {u"⌃"_s, u"⌥"_s, u"⌘"_s, u"Space"_s}), entry(u"Copy"_s)},
                                       CheatSheetSize::a4);
    QStringList lines;
    for (const SheetText &text : view.elements().texts) {
        if (title.contains(text.line.text) && text.line.style.size == 9)
            lines.append(text.line.text);
    }
    EXPECT_GT(lines.size(), 1);
    EXPECT_EQ(lines.join(u' '), title);
    expectNoOverlap(view);
    const auto cells = cellsOf(view);
    EXPECT_EQ(cells.at(0).height(), cells.at(1).height());
}

TEST(StandardSheet, KeepsATitleEightPointsFromItsKeys)
{
    const Speaking language(AppLanguage::English);
    const PrintableCheatSheetView view({entry(QString(150, u'i'), {u"⌘"_s, u"Space"_s})}, CheatSheetSize::a4);
    const SheetText title = view.elements().texts.at(2);
    const qreal letter = title.line.width / static_cast<qreal>(title.line.text.size());
    // The outlines of the cell and of its first key.
    const qreal gap = view.elements().outlines.at(1).rect.left() - title.baseline.x() - title.line.width;
    EXPECT_EQ(title.baseline.x(), view.elements().outlines.at(0).rect.left() + 7);
    EXPECT_GE(gap, 8 - 0.01);
    EXPECT_LT(gap, 8 + letter);
}

TEST(StandardSheet, BreaksKeysThatLeaveATitleNoRoom)
{
    const Speaking language(AppLanguage::English);
    QStringList keys{u"⌘"_s, u"K"_s};
    for (int step = 0; step < 30; ++step)
        keys << u"→"_s << u"⌘"_s << u"Space"_s;
    const PrintableCheatSheetView view({entry(u"A sequence without an end in sight"_s, keys)},
                                       CheatSheetSize::a4);
    expectInside(view, 28);
    expectNoOverlap(view);
    EXPECT_GE(cellsOf(view).constFirst().height(), 100);
}

TEST(StandardSheet, IsNotBrokenByForeignTexts)
{
    const Speaking language(AppLanguage::English);
    const QList<Shortcut> list{
        entry(QString(100'000, u'W'), {QString(100'000, u'K')}),
        entry(u"<b>Bold</b><img src=x> &amp;"_s, {u"<i>"_s}),
        entry(u"a\u0000b\u0007\n\r\t\u2028c\u202Ed"_s),
        entry(u"مرحبا (A) עברית مرحبا مرحبا مرحبا مرحبا مرحبا مرحبا"_s, {u"مرحبا"_s}),
        entry(u"👩‍👩‍👧🎉"_s.repeated(60), {u"🎉"_s}),
        entry(QString(QChar(0xD800)) + u"x"_s + QChar(0xDC00) + QChar(0xFFFE) + QChar(0xE000)),
        entry(u"e"_s + QString(150, QChar(0x0301))),
        entry(QString(), {QString()}),
        entry(u"   "_s, {}),
    };
    const PrintableCheatSheetView view(list, CheatSheetSize::a4);
    expectInside(view, 28);
    expectNoOverlap(view);
    EXPECT_EQ(cellsOf(view).size(), list.size());
    EXPECT_TRUE(textsOf(view.elements()).contains(u"<b>Bold</b><img src=x> &amp;"_s));
    for (const QString &text : textsOf(view.elements())) {
        for (const QChar character : text)
            EXPECT_TRUE(character.category() != QChar::Other_Control && character != QChar(0x202E));
    }
    EXPECT_LT(view.size().height(), 1500);
}

TEST(WalletCard, IgnoresTheShortcutsThatItIsHanded)
{
    const Speaking language(AppLanguage::English);
    const QStringList expected{
        u"Keyvora"_s, makersDomain(), u"Copy"_s,      u"⌘"_s, u"C"_s,     u"Paste"_s,
        u"⌘"_s,       u"V"_s,         u"Undo"_s,      u"⌘"_s, u"Z"_s,     u"Save"_s,
        u"⌘"_s,       u"S"_s,         u"Spotlight"_s, u"⌘"_s, u"Space"_s, u"Close Window"_s,
        u"⌘"_s,       u"W"_s};
    for (const int handed : {0, 3, 114}) {
        const PrintableCheatSheetView view(entries(handed), CheatSheetSize::wallet);
        EXPECT_EQ(textsOf(view.elements()), expected);
        EXPECT_EQ(view.size(), QSize(243, 153));
        expectInside(view, 11);
        expectNoOverlap(view);
    }
}

TEST(WalletCard, ComesFromTheCatalogOfTheInterfaceLanguage)
{
    const Speaking language(AppLanguage::Czech);
    const QStringList texts = textsOf(PrintableCheatSheetView({}, CheatSheetSize::wallet).elements());
    EXPECT_TRUE(texts.contains(u"Kopírovat"_s));
    EXPECT_TRUE(texts.contains(u"Mezerník"_s));
    EXPECT_FALSE(texts.contains(u"Copy"_s));
}

TEST(WalletCard, HasFewerCellsWithoutSomeOfItsShortcuts)
{
    const Speaking language(AppLanguage::English);
    Typesetter typesetter;
    QList<Shortcut> catalog = ShortcutLibrary::all(AppLanguage::English);
    catalog.removeIf([](const Shortcut &shortcut) { return shortcut.id == u"paste"_s; });
    const QStringList texts = textsOf(walletCard(catalog, {243, 153}, typesetter).elements);
    EXPECT_FALSE(texts.contains(u"Paste"_s));
    EXPECT_TRUE(texts.contains(u"Close Window"_s));
}

TEST(WalletCard, IsHeaderAndRuleWithoutACatalog)
{
    Typesetter typesetter;
    const SheetPage page = walletCard({}, {243, 153}, typesetter);
    EXPECT_EQ(page.size, QSize(243, 153));
    EXPECT_EQ(textsOf(page.elements), (QStringList{u"Keyvora"_s, makersDomain()}));
    ASSERT_EQ(page.elements.rules.size(), 1);
    EXPECT_EQ(page.elements.rules.constFirst().rect.height(), 0.75);
    EXPECT_EQ(page.elements.rules.constFirst().opacity, 0.25);
    EXPECT_TRUE(page.elements.outlines.isEmpty());
    EXPECT_EQ(page.elements.signs.constFirst().size(), QSizeF(10, 10));
}

TEST(WalletCard, ShrinksALongTitleThenCutsIt)
{
    Typesetter typesetter;
    Shortcut copy = entry(u"A title a good deal wider than its column"_s);
    Shortcut paste =
        entry(u"A title that is so much wider than its column that no size down to the least helps it"_s);
    copy.id = u"copy"_s;
    paste.id = u"paste"_s;
    const SheetElements elements = walletCard({copy, paste}, {243, 153}, typesetter).elements;
    constexpr qreal columnWidth = (243 - 22 - 10) / 2.0;
    const SheetLine shrunk = elements.texts.at(2).line;
    EXPECT_EQ(shrunk.text, copy.title);
    EXPECT_LT(shrunk.style.size, 7.5);
    EXPECT_GE(shrunk.style.size, 4.5);
    EXPECT_NEAR(shrunk.width, columnWidth, 0.01);
    const SheetLine cut = elements.texts.at(5).line;
    EXPECT_NEAR(cut.style.size, 4.5, 1e-6);
    EXPECT_TRUE(cut.text.endsWith(u'…'));
    EXPECT_LE(cut.width, columnWidth + 0.01);
}

TEST(PrintableCheatSheetView, DrawsOnAnyPainterAndLeavesItAsItWas)
{
    const Speaking language(AppLanguage::English);
    const PrintableCheatSheetView view({entry(u"Copy 🎉"_s)}, CheatSheetSize::a4);
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::red);
    view.paint(painter);
    EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    painter.end();

    for (const SheetOutline &outline : view.elements().outlines)
        EXPECT_TRUE(hasInk(image, outline.rect.toAlignedRect()));
    for (const SheetText &text : view.elements().texts)
        EXPECT_TRUE(hasInk(image, boundsOf(text).toAlignedRect())) << text.line.text.toStdString();
    EXPECT_FALSE(hasInk(image, QRect(0, 0, 595, 27)));
}

TEST(PrintableCheatSheetView, DoesNotFollowTheDesktopsFont)
{
    const Speaking language(AppLanguage::Czech);
    const QList<Shortcut> list = stickerList(AppLanguage::Czech);
    const PrintableCheatSheetView before(list, CheatSheetSize::a4);
    const QFont font = QGuiApplication::font();
    QFont other = font;
    other.setPointSizeF(3 * font.pointSizeF());
    other.setHintingPreference(QFont::PreferFullHinting);
    QGuiApplication::setFont(other);
    const PrintableCheatSheetView after(list, CheatSheetSize::a4);
    QGuiApplication::setFont(font);
    ASSERT_EQ(before.elements().texts.size(), after.elements().texts.size());
    for (qsizetype i = 0; i < before.elements().texts.size(); ++i)
        EXPECT_EQ(before.elements().texts.at(i).line.width, after.elements().texts.at(i).line.width);
}

} // namespace keyvora
