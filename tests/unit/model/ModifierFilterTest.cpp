// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/ModifierFilter.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(ModifierFilter, ComesInTheOrderOfTheChips)
{
    EXPECT_EQ(allModifierFilters,
              (std::array{ModifierFilter::command, ModifierFilter::option, ModifierFilter::shift,
                          ModifierFilter::control, ModifierFilter::fn}));
}

TEST(ModifierFilter, IsNamedByTheTokenItLooksFor)
{
    const QStringList tokens{u"⌘"_s, u"⌥"_s, u"⇧"_s, u"⌃"_s, u"Fn"_s};
    for (size_t i = 0; i < allModifierFilters.size(); ++i) {
        const QString &token = tokens.at(static_cast<qsizetype>(i));
        EXPECT_EQ(rawValue(allModifierFilters[i]), token);
        EXPECT_EQ(modifierFilterFromRawValue(token), allModifierFilters[i]);
    }
}

TEST(ModifierFilter, IsNotFoundByAnyOtherText)
{
    for (const auto &token : {u"fn"_s, u"FN"_s, u"⌘ "_s, u"⌘⇧"_s, u"^"_s, u"Command"_s, u"C"_s, QString()})
        EXPECT_EQ(modifierFilterFromRawValue(token), std::nullopt) << token.toStdString();
}

} // namespace keyvora
