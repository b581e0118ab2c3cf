// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/KeyToken.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(CharacterToken, IsTheCharacterOrItsWord)
{
    EXPECT_EQ(characterToken(U'k'), u"k"_s);
    EXPECT_EQ(characterToken(U'?'), u"?"_s);
    EXPECT_EQ(characterToken(U'-'), u"\u2212"_s);
    EXPECT_EQ(characterToken(U' '), u"Space"_s);
    EXPECT_EQ(characterToken(U'\U0001F600'), u"\U0001F600"_s);
}

TEST(CharacterToken, IsNothingForControlCharacters)
{
    EXPECT_EQ(characterToken(U'\0'), QString());
    EXPECT_EQ(characterToken(U'\r'), QString());
    EXPECT_EQ(characterToken(U'\x7f'), QString());
}

TEST(QtKeyToken, IsTheCatalogsWord)
{
    const struct
    {
        Qt::Key key;
        QString token;
    } rows[] = {
        {Qt::Key_A, u"A"_s},           {Qt::Key_Minus, u"−"_s},       {Qt::Key_Space, u"Space"_s},
        {Qt::Key_F1, u"F1"_s},         {Qt::Key_F35, u"F35"_s},       {Qt::Key_Enter, u"Return"_s},
        {Qt::Key_Escape, u"Esc"_s},    {Qt::Key_Backtab, u"Tab"_s},   {Qt::Key_Backspace, u"Delete"_s},
        {Qt::Key_Delete, u"Delete"_s}, {Qt::Key_Left, u"←"_s},        {Qt::Key_PageUp, u"Page Up"_s},
        {Qt::Key_Home, u"Home"_s},     {Qt::Key_Insert, u"Insert"_s},
    };
    for (const auto &[key, token] : rows)
        EXPECT_EQ(qtKeyToken(key), token) << key;
}

TEST(QtKeyToken, IsNothingForModifiersAndUnknownKeys)
{
    for (const Qt::Key key :
         {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_AltGr,
          Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_Mode_switch, Qt::Key_VolumeUp, Qt::Key_unknown})
        EXPECT_EQ(qtKeyToken(key), QString()) << key;
    EXPECT_EQ(qtKeyToken(0), QString());
}

} // namespace keyvora
