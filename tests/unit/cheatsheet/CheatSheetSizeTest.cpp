// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "cheatsheet/CheatSheetSize.h"

#include "unit/QtPrinters.h"
#include "unit/cheatsheet/Sheets.h"

#include <gtest/gtest.h>

namespace keyvora {

namespace {

template <typename Function>
QStringList ofAll(Function function)
{
    QStringList all;
    for (const CheatSheetSize size : allCheatSheetSizes)
        all.append(function(size));
    return all;
}

} // namespace

TEST(CheatSheetSize, HasANameForFilesInEveryLanguage)
{
    Speaking language(AppLanguage::Czech);
    const QStringList names{u"wallet"_s, u"a4"_s, u"usLetter"_s};
    EXPECT_EQ(ofAll([](auto size) { return rawValue(size); }), names);
    language.speak(AppLanguage::English);
    EXPECT_EQ(ofAll([](auto size) { return rawValue(size); }), names);
}

TEST(CheatSheetSize, FollowsTheInterfaceLanguage)
{
    Speaking language(AppLanguage::Czech);
    EXPECT_EQ(ofAll(label), (QStringList{u"Peněženka"_s, u"A4"_s, u"US Letter"_s}));
    EXPECT_EQ(ofAll(detail), (QStringList{u"Kapesní karta, nejdůležitějších pár zkratek."_s,
                                          u"Celá knihovna, jedna stránka na nástěnku."_s,
                                          u"Celá knihovna, formát US Letter."_s}));
    language.speak(AppLanguage::English);
    EXPECT_EQ(ofAll(label), (QStringList{u"Wallet"_s, u"A4"_s, u"US Letter"_s}));
    EXPECT_EQ(ofAll(detail), (QStringList{u"Pocket-sized card, a handful of essentials."_s,
                                          u"The full library, one page for the wall."_s,
                                          u"The full library, US Letter format."_s}));
}

TEST(CheatSheetSize, IsThePapersInPoints)
{
    EXPECT_EQ(paperSize(CheatSheetSize::wallet), QSize(243, 153));
    EXPECT_EQ(paperSize(CheatSheetSize::a4), QSize(595, 842));
    EXPECT_EQ(paperSize(CheatSheetSize::usLetter), QSize(612, 792));
}

} // namespace keyvora
