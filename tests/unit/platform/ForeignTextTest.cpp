// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/ForeignText.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(DisplayableForeignText, LeavesOrdinaryTextAlone)
{
    for (const auto &text :
         {u"Copy"_s, u"Příliš žluťoučký kůň"_s, u"⇧⌘Z → „a“ & <b>"_s, u"文字 العربية"_s, QString()})
        EXPECT_EQ(displayableForeignText(text, 100), text);
}

TEST(DisplayableForeignText, KeepsJoinersOfWordsAndEmoji)
{
    for (const auto &text : {u"👩‍👩‍👧"_s, u"नमस्‍ते"_s, u"می‌خواهم"_s,
                             u"🏴󠁧󠁢󠁳󠁣󠁴󠁿"_s})
        EXPECT_EQ(displayableForeignText(text, 100), text);
}

TEST(DisplayableForeignText, TurnsControlCharactersIntoSpaces)
{
    EXPECT_EQ(displayableForeignText(u"a\u0007b\u001Bc\u007Fd\u0085e"_s, 100), u"a b c d e"_s);
    EXPECT_EQ(displayableForeignText(QString(u"a"_s + QChar(0) + u"b"_s), 100), u"a b"_s);
}

TEST(DisplayableForeignText, TurnsDirectionControlsIntoSpaces)
{
    const QList<char16_t> controls{0x061C, 0x200E, 0x200F, 0x202A, 0x202B, 0x202C, 0x202D,
                                   0x202E, 0x2066, 0x2067, 0x2068, 0x2069, 0xFEFF};
    for (const char16_t control : controls)
        EXPECT_EQ(displayableForeignText(u"a"_s + QChar(control) + u"b"_s, 100), u"a b"_s)
            << static_cast<int>(control);
}

TEST(DisplayableForeignText, FoldsWhiteSpace)
{
    EXPECT_EQ(displayableForeignText(u"  a \t\r\n b\u2028\u2029\u00A0c  "_s, 100), u"a b c"_s);
    EXPECT_EQ(displayableForeignText(u" \n\t "_s, 100), QString());
}

TEST(DisplayableForeignText, KeepsATextThatJustFits)
{
    EXPECT_EQ(displayableForeignText(QString(10, u'a'), 10), QString(10, u'a'));
}

TEST(DisplayableForeignText, CutsALongerTextAndSaysSo)
{
    EXPECT_EQ(displayableForeignText(QString(11, u'a'), 10), QString(9, u'a') + u'…');
    EXPECT_EQ(displayableForeignText(QString(1'000'000, u'a'), 10), QString(9, u'a') + u'…');
}

TEST(DisplayableForeignText, NeverCutsACharacterInTwo)
{
    const QString party = u"🎉"_s;
    ASSERT_EQ(party.size(), 2);
    EXPECT_EQ(displayableForeignText(party.repeated(6), 10), party.repeated(4) + u'…');
    for (qsizetype maximum = 2; maximum < 20; ++maximum) {
        for (qsizetype padding = 0; padding < 90; ++padding) {
            const QString text = displayableForeignText(QString(padding, u' ') + party.repeated(60), maximum);
            EXPECT_LE(text.size(), maximum);
            EXPECT_TRUE(text.isValidUtf16());
            EXPECT_TRUE(text.endsWith(u'…'));
        }
    }
}

TEST(DisplayableForeignText, MeasuresWhatIsLeftAfterFolding)
{
    EXPECT_EQ(displayableForeignText(u"  a     b  "_s, 3), u"a b"_s);
}

TEST(DisplayableForeignText, SaysThatSomethingIsMissingBehindLongPadding)
{
    EXPECT_EQ(displayableForeignText(u"a"_s + QString(10'000, u' ') + u"b"_s, 10), u"a…"_s);
}

TEST(HarmlessForeignText, KeepsWhiteSpaceInside)
{
    EXPECT_EQ(harmlessForeignText(u"  a  b\u00A0c "_s, 100), u"a  b\u00A0c"_s);
}

TEST(HarmlessForeignText, TurnsWhatWouldDoHarmIntoSpaces)
{
    EXPECT_EQ(harmlessForeignText(u"a\u0007\u202Eb"_s, 100), u"a  b"_s);
}

TEST(HarmlessForeignText, CutsALongTextAndSaysSo)
{
    EXPECT_EQ(harmlessForeignText(QString(1'000'000, u'a'), 10), QString(9, u'a') + u'…');
    EXPECT_EQ(harmlessForeignText(QString(10, u'a'), 10), QString(10, u'a'));
}

} // namespace keyvora
