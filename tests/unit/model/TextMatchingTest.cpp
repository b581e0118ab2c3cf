// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/TextMatching.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale english(QLocale::English, QLocale::UnitedStates);
const QLocale czech(QLocale::Czech, QLocale::Czechia);
const QLocale polish(QLocale::Polish, QLocale::Poland);
const QLocale turkish(QLocale::Turkish, QLocale::Turkey);

QString composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

QString decomposed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_D);
}

bool contains(const QString &text, const QString &needle, const QLocale &locale = english)
{
    return ContainmentMatcher(needle, locale).isContainedIn(text);
}

} // namespace

TEST(ContainmentMatcher, FindsATextAnywhereInAnother)
{
    EXPECT_TRUE(contains(u"Copy Style"_s, u"Copy"_s));
    EXPECT_TRUE(contains(u"Copy Style"_s, u"py St"_s));
    EXPECT_TRUE(contains(u"Copy Style"_s, u"Style"_s));
    EXPECT_FALSE(contains(u"Copy Style"_s, u"Paste"_s));
    EXPECT_FALSE(contains(u"Copy"_s, u"Copy Style"_s));
}

TEST(ContainmentMatcher, FindsNothingInAnEmptyText)
{
    EXPECT_FALSE(contains(QString(), u"a"_s));
}

TEST(ContainmentMatcher, IgnoresCase)
{
    EXPECT_TRUE(contains(u"Copy"_s, u"COPY"_s));
    EXPECT_TRUE(contains(u"COPY"_s, u"copy"_s));
    EXPECT_TRUE(contains(u"Přiblížit"_s, u"PŘIBLÍŽIT"_s, czech));
    EXPECT_TRUE(contains(u"ŁÓDŹ"_s, u"łódź"_s, polish));
}

TEST(ContainmentMatcher, MindsDiacritics)
{
    EXPECT_FALSE(contains(u"Přiblížit"_s, u"priblizit"_s, czech));
    EXPECT_FALSE(contains(u"Domovska"_s, u"domovská"_s, czech));
    EXPECT_FALSE(contains(u"Łódź"_s, u"lodz"_s, polish));
}

TEST(ContainmentMatcher, TakesComposedAndDecomposedLettersForTheSame)
{
    for (const auto &text : {u"Přiblížit"_s, u"Kůň"_s, u"Dolů"_s}) {
        ASSERT_NE(composed(text), decomposed(text));
        EXPECT_TRUE(contains(composed(text), decomposed(text), czech));
        EXPECT_TRUE(contains(decomposed(text), composed(text), czech));
        EXPECT_TRUE(contains(decomposed(text), composed(text).toUpper(), czech));
    }
}

TEST(ContainmentMatcher, DoesNotFindALetterInsideAnAccentedOne)
{
    EXPECT_FALSE(contains(composed(u"ů"_s), u"u"_s, czech));
    EXPECT_FALSE(contains(decomposed(u"ů"_s), u"u"_s, czech));
    EXPECT_FALSE(contains(decomposed(u"příběh"_s), u"r"_s, czech));
}

TEST(ContainmentMatcher, FollowsTurkishCaseInTurkish)
{
    EXPECT_TRUE(contains(u"KIRMIZI"_s, u"kırmızı"_s, turkish));
    EXPECT_TRUE(contains(u"İstanbul"_s, u"istanbul"_s, turkish));
    EXPECT_FALSE(contains(u"KIRMIZI"_s, u"kirmizi"_s, turkish));
    EXPECT_FALSE(contains(u"TITLE"_s, u"title"_s, turkish));
}

TEST(ContainmentMatcher, DoesNotFollowTurkishCaseElsewhere)
{
    EXPECT_TRUE(contains(u"TITLE"_s, u"title"_s, english));
    EXPECT_TRUE(contains(u"TITLE"_s, u"title"_s, czech));
    EXPECT_FALSE(contains(u"KIRMIZI"_s, u"kırmızı"_s, english));
}

TEST(ContainmentMatcher, FindsSymbolsOfKeys)
{
    EXPECT_TRUE(contains(u"⇧⌘Z"_s, u"⌘z"_s));
    EXPECT_TRUE(contains(u"⌘−"_s, u"−"_s));
    EXPECT_FALSE(contains(u"⌘−"_s, u"-"_s));
}

TEST(ContainmentMatcher, FindsLettersBeyondTheBasicPlane)
{
    EXPECT_TRUE(contains(u"a 🎉 b"_s, u"🎉"_s));
    EXPECT_FALSE(contains(u"a 🎉 b"_s, u"🎈"_s));
    EXPECT_TRUE(contains(u"𐐀"_s, u"𐐨"_s));
}

TEST(FoldedForMatching, DropsCase)
{
    EXPECT_EQ(foldedForMatching(u"Copy STYLE"_s, english), u"copy style"_s);
}

TEST(FoldedForMatching, DropsCzechDiacritics)
{
    EXPECT_EQ(foldedForMatching(u"Přiblížit"_s, czech), u"priblizit"_s);
    EXPECT_EQ(foldedForMatching(u"PŘÍLIŠ ŽLUŤOUČKÝ KŮŇ ÚPĚL ĎÁBELSKÉ ÓDY"_s, czech),
              u"prilis zlutoucky kun upel dabelske ody"_s);
}

TEST(FoldedForMatching, DropsThePolishStroke)
{
    EXPECT_EQ(foldedForMatching(u"Łódź"_s, polish), u"lodz"_s);
    EXPECT_EQ(foldedForMatching(u"Zażółć gęślą jaźń"_s, polish), u"zazolc gesla jazn"_s);
}

TEST(FoldedForMatching, DropsStrokesOfOtherAlphabets)
{
    EXPECT_EQ(foldedForMatching(u"Đorđe Søren Ħal"_s, english), u"dorde soren hal"_s);
}

TEST(FoldedForMatching, GivesComposedAndDecomposedTextTheSameForm)
{
    for (const auto &text : {u"Přiblížit"_s, u"Kůň"_s, u"Łódź"_s, u"Ångström"_s})
        EXPECT_EQ(foldedForMatching(composed(text), czech), foldedForMatching(decomposed(text), czech));
}

TEST(FoldedForMatching, FollowsTurkishCaseInTurkish)
{
    EXPECT_EQ(foldedForMatching(u"KIRMIZI"_s, turkish), foldedForMatching(u"kırmızı"_s, turkish));
    EXPECT_EQ(foldedForMatching(u"İSTANBUL"_s, turkish), u"istanbul"_s);
    EXPECT_NE(foldedForMatching(u"KIRMIZI"_s, turkish), foldedForMatching(u"kirmizi"_s, turkish));
    EXPECT_EQ(foldedForMatching(u"TITLE"_s, english), u"title"_s);
}

TEST(FoldedForMatching, LeavesNothingOfCombiningMarksAlone)
{
    EXPECT_EQ(foldedForMatching(u"\u030C\u0301"_s, english), QString());
    EXPECT_EQ(foldedForMatching(QString(), english), QString());
}

TEST(FoldedForMatching, LeavesSymbolsAndPunctuationAlone)
{
    EXPECT_EQ(foldedForMatching(u"Save As… ⌘ & 🎉"_s, english), u"save as… ⌘ & 🎉"_s);
}

} // namespace keyvora
