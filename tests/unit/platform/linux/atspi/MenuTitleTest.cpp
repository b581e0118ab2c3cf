// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/GtkMenus.h"
#include "platform/linux/atspi/MenuTreeReader.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(MenuTitle, IsTheNameWithoutPadding)
{
    EXPECT_EQ(menuTitle(u"New      "_s), u"New"_s);
    EXPECT_EQ(menuTitle(u"  New"_s), u"New"_s);
    EXPECT_EQ(menuTitle(u" \n "_s), QString());
}

TEST(MenuTitle, EndsAtATab)
{
    EXPECT_EQ(menuTitle(u"Manual tab\tCtrl+J"_s), u"Manual tab"_s);
    EXPECT_EQ(menuTitle(u"\tCtrl+J"_s), QString());
}

TEST(MenuTitle, IsOtherwiseAsItStands)
{
    for (const auto &text :
         {u"Save As..."_s, u"Uložit jako…"_s, u"Two  spaces"_s, u"R&D"_s, u"a_b"_s, u"<b>"_s})
        EXPECT_EQ(menuTitle(text), text);
}

TEST(MenuTitle, IsHarmlessAndShort)
{
    EXPECT_EQ(menuTitle(u"ab\u202Edc"_s), u"ab dc"_s);
    EXPECT_EQ(menuTitle(QString(1'000'000, u'a')).size(), 256);
}

TEST(Mnemonic, IsTakenOutOfALabel)
{
    EXPECT_EQ(withoutMnemonic(u"Save _As..."_s), u"Save As..."_s);
    EXPECT_EQ(withoutMnemonic(u"_File"_s), u"File"_s);
    EXPECT_EQ(withoutMnemonic(u"snake__case"_s), u"snake_case"_s);
    EXPECT_EQ(withoutMnemonic(u"End_"_s), u"End"_s);
    EXPECT_EQ(withoutMnemonic(u"Plain"_s), u"Plain"_s);
}

} // namespace keyvora
