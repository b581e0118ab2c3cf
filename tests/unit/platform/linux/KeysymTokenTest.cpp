// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/KeysymToken.h"

#include "unit/QtPrinters.h"

#include <gtest/gtest.h>
#include <xkbcommon/xkbcommon.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Row
{
    quint32 keysym;
    QString token;
};

void check(const QList<Row> &rows)
{
    for (const auto &[keysym, token] : rows)
        EXPECT_EQ(keysymToken(keysym), token) << std::hex << keysym;
}

} // namespace

TEST(KeysymToken, OfCharacters)
{
    check({
        {XKB_KEY_a, u"a"_s},
        {XKB_KEY_A, u"A"_s},
        {XKB_KEY_ecaron, u"ě"_s},
        {XKB_KEY_Cyrillic_zhe, u"ж"_s},
        {XKB_KEY_space, u"Space"_s},
        {XKB_KEY_nobreakspace, u"Space"_s},
        {XKB_KEY_emspace, u"Space"_s},
        {XKB_KEY_Linefeed, QString()},
        {XKB_KEY_minus, u"\u2212"_s},
        {XKB_KEY_grave, u"`"_s},
        {XKB_KEY_EuroSign, u"€"_s},
    });
}

TEST(KeysymToken, OfKeysWithAWord)
{
    check({
        {XKB_KEY_Return, u"Return"_s},
        {XKB_KEY_Escape, u"Esc"_s},
        {XKB_KEY_Tab, u"Tab"_s},
        {XKB_KEY_ISO_Left_Tab, u"Tab"_s},
        {XKB_KEY_BackSpace, u"Delete"_s},
        {XKB_KEY_Delete, u"Delete"_s},
        {XKB_KEY_Left, u"←"_s},
        {XKB_KEY_Down, u"↓"_s},
        {XKB_KEY_Prior, u"Page Up"_s},
        {XKB_KEY_F1, u"F1"_s},
        {XKB_KEY_F35, u"F35"_s},
    });
}

TEST(KeysymToken, OfTheNumberPadIsThatOfTheSameKeyElsewhere)
{
    check({
        {XKB_KEY_KP_0, u"0"_s},
        {XKB_KEY_KP_9, u"9"_s},
        {XKB_KEY_KP_Add, u"+"_s},
        {XKB_KEY_KP_Subtract, u"\u2212"_s},
        {XKB_KEY_KP_Multiply, u"*"_s},
        {XKB_KEY_KP_Divide, u"/"_s},
        {XKB_KEY_KP_Decimal, u"."_s},
        {XKB_KEY_KP_Separator, u","_s},
        {XKB_KEY_KP_Equal, u"="_s},
        {XKB_KEY_KP_Enter, u"Return"_s},
        {XKB_KEY_KP_Home, u"Home"_s},
        {XKB_KEY_KP_Up, u"↑"_s},
    });
}

TEST(AccentToken, IsItsSign)
{
    EXPECT_EQ(accentToken(XKB_KEY_dead_grave), u"`"_s);
    EXPECT_EQ(accentToken(XKB_KEY_dead_acute), u"´"_s);
    EXPECT_EQ(accentToken(XKB_KEY_dead_circumflex), u"^"_s);
    EXPECT_EQ(accentToken(XKB_KEY_dead_tilde), u"~"_s);
    EXPECT_EQ(accentToken(XKB_KEY_dead_diaeresis), u"¨"_s);
    EXPECT_EQ(accentToken(XKB_KEY_dead_caron), u"ˇ"_s);
    EXPECT_EQ(accentToken(XKB_KEY_dead_abovering), u"°"_s);
}

TEST(AccentToken, IsNothingForWhatIsNoDeadKey)
{
    EXPECT_EQ(accentToken(XKB_KEY_grave), QString());
    EXPECT_EQ(accentToken(XKB_KEY_a), QString());
    EXPECT_EQ(accentToken(XKB_KEY_NoSymbol), QString());
}

TEST(KeysymToken, IsNothingForModifiersLocksAndOtherKeys)
{
    for (const int keysym :
         {XKB_KEY_Shift_L, XKB_KEY_Control_R, XKB_KEY_Alt_L, XKB_KEY_Meta_L, XKB_KEY_Super_L,
          XKB_KEY_Caps_Lock, XKB_KEY_Num_Lock, XKB_KEY_Scroll_Lock, XKB_KEY_ISO_Level3_Shift,
          XKB_KEY_ISO_Next_Group, XKB_KEY_Mode_switch, XKB_KEY_Multi_key, XKB_KEY_Menu, XKB_KEY_KP_Begin,
          XKB_KEY_dead_acute, XKB_KEY_NoSymbol, XKB_KEY_XF86AudioMute})
        EXPECT_EQ(keysymToken(static_cast<quint32>(keysym)), QString()) << std::hex << keysym;
}

} // namespace keyvora
