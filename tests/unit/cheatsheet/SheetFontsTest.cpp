// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/SheetFonts.h"

#include "cheatsheet/PrintKeyCaps.h"
#include "model/ShortcutLibrary.h"
#include "unit/QtPrinters.h"
#include "unit/cheatsheet/Sheets.h"

#include <QSet>

#include <gtest/gtest.h>

namespace keyvora {

TEST(SheetFonts, AreInstalled)
{
    SheetFonts fonts;
    for (qsizetype family = 0; family < SheetFonts::families().size(); ++family)
        EXPECT_EQ(fonts.rawFont(family, QFont::Normal).familyName(), SheetFonts::families().at(family));
}

TEST(SheetFonts, HaveEveryWeightOfThePage)
{
    SheetFonts fonts;
    for (const QFont::Weight weight : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold})
        EXPECT_EQ(fonts.rawFont(0, weight).weight(), weight);
}

TEST(SheetFonts, HaveEveryKeyOfTheCatalogInTheFirstFamily)
{
    const Speaking language(AppLanguage::Czech);
    SheetFonts fonts;
    const QRawFont font = fonts.rawFont(0, QFont::DemiBold);
    QSet<QString> tokens{u"→"_s, u"⇪"_s};
    for (const ShortcutSeed &seed : ShortcutLibrary::seeds())
        tokens.unite({seed.keys.begin(), seed.keys.end()});
    for (const QString &token : tokens) {
        for (const uint character : PrintKeyCaps::label(token).toUcs4())
            EXPECT_TRUE(font.supportsCharacter(character)) << token.toStdString();
    }
}

TEST(SheetFonts, HaveEveryModifierInTheSecondFamilyToo)
{
    SheetFonts fonts;
    for (const uint character : u"⌘⌥⌃⇧→←↑↓−"_s.toUcs4())
        EXPECT_TRUE(fonts.rawFont(1, QFont::DemiBold).supportsCharacter(character)) << character;
}

} // namespace keyvora
