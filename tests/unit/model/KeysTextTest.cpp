// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/KeysText.h"

#include "model/ShortcutLibrary.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Written
{
    const char *name;
    QString text;
    QStringList keys;
};

class ParsedKeys : public testing::TestWithParam<Written>
{
};

} // namespace

TEST_P(ParsedKeys, AreThePiecesOfTheSteps)
{
    EXPECT_EQ(parsedKeys(GetParam().text), GetParam().keys);
}

INSTANTIATE_TEST_SUITE_P(
    All, ParsedKeys,
    testing::Values(Written{"None", {}, {}}, Written{"Blank", u" \t\n "_s, {}},
                    Written{"One", u"F5"_s, {u"F5"_s}}, Written{"Combination", u"⌘+C"_s, {u"⌘"_s, u"C"_s}},
                    Written{"TwoSteps", u"⌘+K → ⌘+C"_s, {u"⌘"_s, u"K"_s, u"→"_s, u"⌘"_s, u"C"_s}},
                    Written{"EmptyPiece", u"  ⌘  + +   K "_s, {u"⌘"_s, u"K"_s}},
                    Written{"SeparatorsAlone", u" + → + → "_s, {}},
                    Written{"EmptyFirstStep", u"→ ⌘+C"_s, {u"⌘"_s, u"C"_s}},
                    Written{"EmptyLastStep", u"⌘+C →"_s, {u"⌘"_s, u"C"_s}},
                    Written{"EmptyStepBetween", u"G → → I"_s, {u"G"_s, u"→"_s, u"I"_s}},
                    Written{"ThreeSteps", u"A→B→C"_s, {u"A"_s, u"→"_s, u"B"_s, u"→"_s, u"C"_s}},
                    Written{"CaseStays", u"⌘+k"_s, {u"⌘"_s, u"k"_s}},
                    Written{"WordsWithSpaces", u"⌃ + Page Up"_s, {u"⌃"_s, u"Page Up"_s}},
                    Written{"OtherSpaces", u"⌘\u00a0+\u2009C"_s, {u"⌘"_s, u"C"_s}}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(KeysText, SeparatesKeysAndSteps)
{
    EXPECT_EQ(keysText({}), QString());
    EXPECT_EQ(keysText({u"⌃"_s, u"⇧"_s, u"W"_s}), u"⌃ + ⇧ + W"_s);
    EXPECT_EQ(keysText({u"⌘"_s, u"K"_s, u"→"_s, u"⌘"_s, u"C"_s}), u"⌘ + K → ⌘ + C"_s);
}

TEST(KeysText, OfTheCatalogIsReadBack)
{
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds()) {
        if (seed.keys.constLast() == u"→"_s || seed.keys.contains(u"+"_s))
            continue;
        EXPECT_EQ(parsedKeys(keysText(seed.keys)), seed.keys) << qPrintable(seed.id);
    }
}

} // namespace keyvora
