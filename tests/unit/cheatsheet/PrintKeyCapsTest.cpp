// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/PrintKeyCaps.h"

#include "unit/QtPrinters.h"
#include "unit/cheatsheet/Sheets.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

constexpr qreal plenty = 1000;

SheetElements capsOf(const QStringList &keys, bool compact = false, qreal maximumWidth = plenty)
{
    const Speaking language(AppLanguage::English);
    Typesetter typesetter;
    return PrintKeyCaps(keys, compact, maximumWidth, typesetter).elements({0, 0}, Qt::AlignLeft);
}

const QStringList threeSteps{u"⌘"_s, u"K"_s, u"→"_s, u"⌘"_s, u"⇧"_s, u"S"_s, u"→"_s, u"⌃"_s, u"Esc"_s};

} // namespace

TEST(PrintKeyCaps, NamesTheSpaceBarInTheInterfaceLanguage)
{
    Speaking language(AppLanguage::Czech);
    EXPECT_EQ(PrintKeyCaps::label(u"Space"_s), u"Mezerník"_s);
    language.speak(AppLanguage::English);
    EXPECT_EQ(PrintKeyCaps::label(u"Space"_s), u"Space"_s);
    EXPECT_EQ(PrintKeyCaps::label(u"Delete"_s), u"Delete"_s);
}

TEST(PrintKeyCaps, PutsEveryKeyOnACap)
{
    const SheetElements caps = capsOf({u"⌥"_s, u"⌘"_s, u"Space"_s});
    EXPECT_EQ(textsOf(caps), (QStringList{u"⌥"_s, u"⌘"_s, u"Space"_s}));
    ASSERT_EQ(caps.outlines.size(), 3);
    for (qsizetype i = 0; i < 3; ++i)
        EXPECT_TRUE(caps.outlines.at(i).rect.contains(boundsOf(caps.texts.at(i)).center()));
}

TEST(PrintKeyCaps, TellsStepsFromArrowKeys)
{
    const SheetElements steps = capsOf({u"⌘"_s, u"K"_s, u"→"_s, u"S"_s});
    EXPECT_EQ(steps.outlines.size(), 3);
    EXPECT_EQ(steps.texts.at(2).line.style, (TextStyle{9, QFont::DemiBold}));
    EXPECT_EQ(steps.texts.at(2).opacity, 0.55);

    const SheetElements arrow = capsOf({u"⌘"_s, u"→"_s});
    EXPECT_EQ(arrow.outlines.size(), 2);
    EXPECT_EQ(arrow.texts.at(1).line.style, (TextStyle{10, QFont::DemiBold}));
    EXPECT_EQ(arrow.texts.at(1).opacity, 1);
}

TEST(PrintKeyCaps, HasTheMeasuresOfTheSheet)
{
    const SheetElements caps = capsOf({u"I"_s, u"Delete"_s});
    const QRectF narrow = caps.outlines.at(0).rect;
    const QRectF wide = caps.outlines.at(1).rect;
    EXPECT_EQ(narrow.width(), 20);
    EXPECT_NEAR(wide.width(), caps.texts.at(1).line.width + 12, 1e-6);
    EXPECT_NEAR(wide.left() - narrow.right(), 4, 1e-6);
    EXPECT_EQ(caps.outlines.at(0).radius, 4);
    EXPECT_EQ(caps.outlines.at(0).opacity, 0.45);
    EXPECT_EQ(caps.texts.at(0).line.style, (TextStyle{10, QFont::DemiBold}));
}

TEST(PrintKeyCaps, HasSmallerMeasuresOnTheCard)
{
    const SheetElements caps = capsOf({u"I"_s, u"Delete"_s, u"→"_s, u"K"_s}, true);
    const QRectF narrow = caps.outlines.at(0).rect;
    const QRectF wide = caps.outlines.at(1).rect;
    EXPECT_EQ(narrow.width(), 13);
    EXPECT_NEAR(wide.width(), caps.texts.at(1).line.width + 8, 1e-6);
    EXPECT_NEAR(wide.left() - narrow.right(), 2.5, 1e-6);
    EXPECT_EQ(caps.outlines.at(0).radius, 3);
    EXPECT_EQ(caps.texts.at(0).line.style, (TextStyle{7, QFont::DemiBold}));
    EXPECT_EQ(caps.texts.at(2).line.style, (TextStyle{6.5, QFont::DemiBold}));
}

TEST(PrintKeyCaps, CentresItsLabels)
{
    const SheetElements caps = capsOf({u"⌘"_s, u"I"_s, u"Delete"_s});
    for (qsizetype i = 0; i < 3; ++i) {
        const SheetText &text = caps.texts.at(i);
        const QRectF cap = caps.outlines.at(i).rect;
        EXPECT_NEAR(text.baseline.x() + text.line.width / 2, cap.center().x(), 1e-6);
        EXPECT_EQ(text.baseline.y(), caps.texts.at(0).baseline.y());
    }
}

TEST(PrintKeyCaps, BreaksBeforeAStep)
{
    const Speaking language(AppLanguage::English);
    Typesetter typesetter;
    const qreal inOneRow = PrintKeyCaps(threeSteps, false, plenty, typesetter).size().width();
    const PrintKeyCaps caps(threeSteps, false, inOneRow - 1, typesetter);
    EXPECT_EQ(caps.size().height(), 2 * 17 + 4);
    const SheetElements elements = caps.elements({100, 0}, Qt::AlignRight);
    EXPECT_LT(elements.texts.at(5).baseline.y(), 17);
    for (const qsizetype i : {6, 7, 8})
        EXPECT_GT(elements.texts.at(i).baseline.y(), 17) << i;
    EXPECT_NEAR(elements.outlines.at(4).rect.right(), 100 + caps.size().width(), 1e-6);
    EXPECT_NEAR(elements.outlines.at(6).rect.right(), 100 + caps.size().width(), 1e-6);
}

TEST(PrintKeyCaps, BreaksAStepThatIsTooLongForARow)
{
    const SheetElements caps = capsOf({u"⌃"_s, u"⌥"_s, u"⇧"_s, u"⌘"_s, u"Space"_s}, false, 60);
    EXPECT_EQ(caps.outlines.size(), 5);
    for (const SheetOutline &cap : caps.outlines)
        EXPECT_LE(cap.rect.right(), 60.01);
}

TEST(PrintKeyCaps, CutsALabelThatIsTooLongForARow)
{
    const SheetElements caps = capsOf({u"⌘"_s, QString(1000, u'K')}, false, 80);
    EXPECT_TRUE(caps.texts.at(1).line.text.endsWith(u'…'));
    EXPECT_LE(caps.outlines.at(1).rect.width(), 80.01);
}

TEST(PrintKeyCaps, MakesForeignLabelsHarmless)
{
    EXPECT_EQ(textsOf(capsOf({u"\n\u202EA\u0007B"_s})), QStringList{u"A B"_s});
}

TEST(PrintKeyCaps, IsNothingWithoutKeys)
{
    const SheetElements caps = capsOf({});
    EXPECT_TRUE(caps.texts.isEmpty());
    EXPECT_TRUE(caps.outlines.isEmpty());
    Typesetter typesetter;
    EXPECT_EQ(PrintKeyCaps({}, false, plenty, typesetter).size().width(), 0);
}

} // namespace keyvora
