// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeyPress.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(KeyTokens, NameModifiersInAFixedOrder)
{
    const KeyPress press{
        .control = true, .option = true, .shift = true, .command = true, .plain = u"Z"_s, .typed = u"Z"_s};
    EXPECT_EQ(keyTokens(press), (QStringList{u"⌃"_s, u"⌥"_s, u"⇧"_s, u"⌘"_s, u"Z"_s}));
}

TEST(KeyTokens, FallBackToWhatWasTyped)
{
    EXPECT_EQ(keyTokens({.plain = {}, .typed = u"€"_s}), QStringList{u"€"_s});
}

TEST(KeyPress, MatchesWhateverTheOrder)
{
    const KeyPress press{.shift = true, .command = true, .plain = u"Z"_s, .typed = u"Z"_s};
    EXPECT_TRUE(isPressOf(press, {u"⇧"_s, u"⌘"_s, u"Z"_s}));
    EXPECT_TRUE(isPressOf(press, {u"⌘"_s, u"⇧"_s, u"Z"_s}));
    EXPECT_TRUE(isPressOf(press, {u"⌘"_s, u"⌘"_s, u"⇧"_s, u"Z"_s}));
}

TEST(KeyPress, NeedsEveryKeyAndNoOther)
{
    const KeyPress press{.shift = true, .command = true, .plain = u"Z"_s, .typed = u"Z"_s};
    EXPECT_FALSE(isPressOf(press, {u"⌘"_s, u"Z"_s}));
    EXPECT_FALSE(isPressOf(press, {u"⌃"_s, u"⇧"_s, u"⌘"_s, u"Z"_s}));
    EXPECT_FALSE(isPressOf(press, {u"⇧"_s, u"⌘"_s, u"Y"_s}));
    EXPECT_FALSE(isPressOf(press, {}));
}

TEST(KeyPress, WithASignMayBeWrittenInThreeWays)
{
    const KeyPress press{.shift = true, .plain = u"1"_s, .typed = u"!"_s};
    EXPECT_EQ(readings(press), (QList<QStringList>{{u"⇧"_s, u"1"_s}, {u"!"_s}, {u"⇧"_s, u"!"_s}}));
    EXPECT_FALSE(isPressOf(press, {u"1"_s}));
}

TEST(KeyPress, OfASignThatNeedsShiftIsTheSign)
{
    const KeyPress american{.shift = true, .command = true, .plain = u"="_s, .typed = u"+"_s};
    EXPECT_TRUE(isPressOf(american, {u"⌘"_s, u"+"_s}));
    const KeyPress czech{.shift = true, .plain = u"+"_s, .typed = u"1"_s};
    EXPECT_TRUE(isPressOf(czech, {u"⇧"_s, u"1"_s}));
}

TEST(KeyPress, OfAnotherLevelIsTheSignAlone)
{
    const KeyPress press{.control = true, .plain = u";"_s, .typed = u"`"_s};
    EXPECT_TRUE(isPressOf(press, {u"⌃"_s, u"`"_s}));
}

TEST(KeyPress, CountsByItsLatinLetterToo)
{
    const KeyPress press{.command = true, .plain = u"С"_s, .typed = u"С"_s, .latin = u"C"_s};
    EXPECT_TRUE(isPressOf(press, {u"⌘"_s, u"C"_s}));
    EXPECT_TRUE(isPressOf(press, {u"⌘"_s, u"С"_s}));
    const KeyPress shifted{.shift = true, .plain = u"С"_s, .typed = u"С"_s, .latin = u"C"_s};
    EXPECT_TRUE(isPressOf(shifted, {u"⇧"_s, u"C"_s}));
    EXPECT_FALSE(isPressOf(shifted, {u"C"_s}));
}

TEST(KeyPress, MatchesWhatUsersWriteThemselves)
{
    EXPECT_TRUE(isPressOf({.command = true, .plain = u"K"_s, .typed = u"K"_s}, {u"⌘"_s, u"k"_s}));
    EXPECT_TRUE(isPressOf({.command = true, .plain = u"−"_s, .typed = u"−"_s}, {u"⌘"_s, u"-"_s}));
}

TEST(KeyPress, CannotShowFn)
{
    EXPECT_TRUE(isPressOf({.plain = u"F11"_s, .typed = u"F11"_s}, {u"Fn"_s, u"F11"_s}));
}

} // namespace keyvora
