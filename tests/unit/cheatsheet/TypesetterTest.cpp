// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/Typesetter.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr TextStyle style{.size = 10};

QList<quint32> glyphsOf(const SheetLine &line)
{
    QList<quint32> glyphs;
    for (const QGlyphRun &run : line.runs)
        glyphs += run.glyphIndexes();
    return glyphs;
}

} // namespace

TEST(Typesetter, SetsEveryCharacterAsItsOwnGlyph)
{
    Typesetter typesetter;
    SheetFonts fonts;
    const QRawFont font = fonts.rawFont(0, QFont::Normal);
    for (const auto &text : {u"A -> B <- => (ABC) 10:30 2x3 @A X-Y"_s, u"office fi fl ffi"_s,
                             u"Příliš žluťoučký kůň"_s, u"⌘⌥⌃⇧→←"_s})
        EXPECT_EQ(glyphsOf(typesetter.line(text, style)), font.glyphIndexesForString(text))
            << text.toStdString();
}

TEST(Typesetter, KnowsTheKerning)
{
    Typesetter typesetter;
    EXPECT_LT(typesetter.line(u"To"_s, style).width,
              typesetter.line(u"T"_s, style).width + typesetter.line(u"o"_s, style).width - 0.1);
}

TEST(Typesetter, MeasuresInProportionToTheSize)
{
    Typesetter typesetter;
    const qreal width = typesetter.line(u"Kopírovat"_s, {.size = 10}).width;
    EXPECT_GT(width, 30);
    for (const qreal size : {0.1, 6.0, 7.5, 100.0})
        EXPECT_NEAR(typesetter.line(u"Kopírovat"_s, {.size = size}).width, width * size / 10, 1e-6);
}

TEST(Typesetter, SetsDecomposedLettersLikeComposedOnes)
{
    Typesetter typesetter;
    EXPECT_EQ(glyphsOf(typesetter.line(u"e\u0301"_s, style)), glyphsOf(typesetter.line(u"\u00E9"_s, style)));
}

TEST(Typesetter, TakesWhatOneFamilyLacksFromTheNext)
{
    Typesetter typesetter;
    const SheetLine line = typesetter.line(u"a☃b"_s, style);
    ASSERT_EQ(line.runs.size(), 3);
    EXPECT_EQ(line.runs.at(0).rawFont().familyName(), SheetFonts::families().at(0));
    EXPECT_EQ(line.runs.at(1).rawFont().familyName(), SheetFonts::families().at(1));
    EXPECT_LT(line.runs.at(0).positions().constFirst().x(), line.runs.at(1).positions().constFirst().x());
    EXPECT_LT(line.runs.at(1).positions().constFirst().x(), line.runs.at(2).positions().constFirst().x());
}

TEST(Typesetter, ShapesScriptsThatNeedIt)
{
    Typesetter typesetter;
    const qreal joined = typesetter.line(u"مرحبا"_s, style).width;
    qreal apart = 0;
    for (const QChar letter : u"مرحبا"_s)
        apart += typesetter.line(letter, style).width;
    EXPECT_GT(joined, 0);
    EXPECT_LT(joined, apart);
}

TEST(Typesetter, OrdersTheFontsOfALineFromLeftToRight)
{
    Typesetter typesetter;
    const SheetLine line = typesetter.line(u"العربية (A) مرحبا B"_s, style);
    ASSERT_GT(line.runs.size(), 1);
    for (qsizetype i = 1; i < line.runs.size(); ++i)
        EXPECT_LE(line.runs.at(i - 1).positions().constFirst().x(),
                  line.runs.at(i).positions().constFirst().x());
}

TEST(FittedLine, StaysAsItIsWhereThereIsRoom)
{
    Typesetter typesetter;
    const qreal width = typesetter.line(u"Close Window"_s, style).width;
    const SheetLine line = typesetter.fitted(u"Close Window"_s, style, width, 0.6);
    EXPECT_EQ(line.text, u"Close Window"_s);
    EXPECT_EQ(line.style.size, 10);
}

TEST(FittedLine, ShrinksNoMoreThanItMust)
{
    Typesetter typesetter;
    const qreal width = typesetter.line(u"Close Window"_s, style).width;
    const SheetLine line = typesetter.fitted(u"Close Window"_s, style, 0.8 * width, 0.6);
    EXPECT_EQ(line.text, u"Close Window"_s);
    EXPECT_NEAR(line.style.size, 8, 1e-6);
    EXPECT_NEAR(line.width, 0.8 * width, 1e-6);
}

TEST(FittedLine, IsCutOnceItHasShrunkEnough)
{
    Typesetter typesetter;
    const qreal width = typesetter.line(u"Close Window"_s, style).width;
    const SheetLine line = typesetter.fitted(u"Close Window"_s, style, 0.4 * width, 0.6);
    EXPECT_NEAR(line.style.size, 6, 1e-6);
    EXPECT_TRUE(line.text.startsWith(u"Clos"_s)) << line.text.toStdString();
    EXPECT_TRUE(line.text.endsWith(u'…'));
    EXPECT_LE(line.width, 0.4 * width + 0.01);
}

TEST(FittedLine, NeverCutsACharacterInTwo)
{
    Typesetter typesetter;
    const QString family = u"👩‍👩‍👧"_s;
    const qreal width = typesetter.line(family, style).width;
    const SheetLine line = typesetter.fitted(family.repeated(5), style, 2.9 * width);
    EXPECT_EQ(line.text.left(line.text.size() - 1), family.repeated((line.text.size() - 1) / family.size()));
}

TEST(FittedLine, IsAnEllipsisWhereNothingElseFits)
{
    Typesetter typesetter;
    EXPECT_EQ(typesetter.fitted(u"Window"_s, style, 1).text, u"…"_s);
    EXPECT_EQ(typesetter.fitted(u"Window"_s, style, -5).text, u"…"_s);
}

TEST(WrappedText, BreaksBetweenWords)
{
    Typesetter typesetter;
    const QString text = u"Capture the whole screen or a part of it"_s;
    const auto lines = typesetter.wrapped(text, style, 80);
    QStringList texts;
    for (const SheetLine &line : lines) {
        EXPECT_LE(line.width, 80.01);
        texts.append(line.text);
    }
    EXPECT_GT(lines.size(), 2);
    EXPECT_EQ(texts.join(u' '), text);
}

TEST(WrappedText, BreaksAWordThatIsTooLong)
{
    Typesetter typesetter;
    QString joined;
    for (const SheetLine &line : typesetter.wrapped(QString(60, u'W'), style, 80)) {
        EXPECT_LE(line.width, 80.01);
        joined += line.text;
    }
    EXPECT_EQ(joined, QString(60, u'W'));
}

TEST(WrappedText, EndsEvenWhereNoCharacterFits)
{
    Typesetter typesetter;
    EXPECT_EQ(typesetter.wrapped(u"Word"_s, style, 0).size(), 4);
}

TEST(WrappedText, IsOneLineAtLeast)
{
    Typesetter typesetter;
    EXPECT_EQ(typesetter.wrapped(QString(), style, 80).size(), 1);
    EXPECT_EQ(typesetter.wrapped(u"Copy"_s, style, 80).size(), 1);
}

} // namespace keyvora
