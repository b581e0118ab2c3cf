// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeySteps.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the tokens have separators.
QList<qsizetype> separatorsOf(const QStringList &tokens)
{
    QList<qsizetype> separators;
    for (qsizetype index = 0; index < tokens.size(); ++index) {
        if (isStepSeparator(tokens, index))
            separators.append(index);
    }
    return separators;
}

} // namespace

TEST(StepSeparator, StandsBetweenTwoSteps)
{
    EXPECT_EQ(separatorsOf({u"⌘"_s, u"K"_s, u"→"_s, u"S"_s}), QList<qsizetype>{2});
    EXPECT_EQ(separatorsOf({u"⌘"_s, u"K"_s, u"→"_s, u"⌘"_s, u"S"_s}), QList<qsizetype>{2});
    EXPECT_EQ(separatorsOf({u"G"_s, u"→"_s, u"H"_s, u"→"_s, u"I"_s}), (QList<qsizetype>{1, 3}));
}

TEST(StepSeparator, IsNotTheArrowKeyOfAStep)
{
    EXPECT_EQ(separatorsOf({u"→"_s}), QList<qsizetype>{});
    for (const auto &modifier : {u"⌘"_s, u"⌥"_s, u"⇧"_s, u"⌃"_s, u"Fn"_s}) {
        EXPECT_EQ(separatorsOf({modifier, u"→"_s}), QList<qsizetype>{}) << modifier.toStdString();
        EXPECT_EQ(separatorsOf({modifier, u"→"_s, u"K"_s}), QList<qsizetype>{}) << modifier.toStdString();
    }
    EXPECT_EQ(separatorsOf({u"⌥"_s, u"⌘"_s, u"→"_s}), QList<qsizetype>{});
}

TEST(StepSeparator, StandsBeforeAndBehindAnArrowKey)
{
    EXPECT_EQ(separatorsOf({u"⌘"_s, u"→"_s, u"→"_s, u"⌘"_s, u"→"_s}), QList<qsizetype>{2});
    EXPECT_EQ(separatorsOf({u"→"_s, u"→"_s, u"→"_s}), QList<qsizetype>{1});
}

TEST(StepSeparator, IsNotAtEitherEnd)
{
    EXPECT_EQ(separatorsOf({u"→"_s, u"K"_s}), QList<qsizetype>{});
    EXPECT_EQ(separatorsOf({u"K"_s, u"→"_s}), QList<qsizetype>{});
    EXPECT_EQ(separatorsOf({}), QList<qsizetype>{});
}

TEST(StepSeparator, IsNoOtherSign)
{
    EXPECT_EQ(separatorsOf({u"K"_s, u"←"_s, u"S"_s}), QList<qsizetype>{});
    EXPECT_EQ(separatorsOf({u"K"_s, u"->"_s, u"S"_s}), QList<qsizetype>{});
    EXPECT_EQ(separatorsOf({u"K"_s, u"→ "_s, u"S"_s}), QList<qsizetype>{});
}

TEST(StepSeparator, IsNotOutsideTheTokens)
{
    const QStringList tokens{u"G"_s, u"→"_s, u"H"_s};
    EXPECT_FALSE(isStepSeparator(tokens, -1));
    EXPECT_FALSE(isStepSeparator(tokens, 3));
    EXPECT_FALSE(isStepSeparator(tokens, 100));
}

} // namespace keyvora
