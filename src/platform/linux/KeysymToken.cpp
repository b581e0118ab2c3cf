// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/KeysymToken.h"

#include "platform/KeyToken.h"

#include <xkbcommon/xkbcommon.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString keysymToken(quint32 keysym)
{
    if (keysym >= XKB_KEY_F1 && keysym <= XKB_KEY_F35)
        return u'F' + QString::number(keysym - XKB_KEY_F1 + 1);
    switch (keysym) {
    case XKB_KEY_Return:
    case XKB_KEY_KP_Enter:
    case XKB_KEY_ISO_Enter:
        return u"Return"_s;
    case XKB_KEY_Escape:
        return u"Esc"_s;
    case XKB_KEY_Tab:
    case XKB_KEY_KP_Tab:
    case XKB_KEY_ISO_Left_Tab:
        return u"Tab"_s;
    case XKB_KEY_BackSpace:
    case XKB_KEY_Delete:
    case XKB_KEY_KP_Delete:
        return u"Delete"_s;
    case XKB_KEY_Left:
    case XKB_KEY_KP_Left:
        return u"←"_s;
    case XKB_KEY_Right:
    case XKB_KEY_KP_Right:
        return u"→"_s;
    case XKB_KEY_Up:
    case XKB_KEY_KP_Up:
        return u"↑"_s;
    case XKB_KEY_Down:
    case XKB_KEY_KP_Down:
        return u"↓"_s;
    case XKB_KEY_Page_Up:
    case XKB_KEY_KP_Page_Up:
        return u"Page Up"_s;
    case XKB_KEY_Page_Down:
    case XKB_KEY_KP_Page_Down:
        return u"Page Down"_s;
    case XKB_KEY_Home:
    case XKB_KEY_KP_Home:
        return u"Home"_s;
    case XKB_KEY_End:
    case XKB_KEY_KP_End:
        return u"End"_s;
    case XKB_KEY_Insert:
    case XKB_KEY_KP_Insert:
        return u"Insert"_s;
    default:
        return characterToken(xkb_keysym_to_utf32(keysym));
    }
}

QString accentToken(quint32 keysym)
{
    switch (keysym) {
    case XKB_KEY_dead_grave:
        return u"`"_s;
    case XKB_KEY_dead_acute:
        return u"´"_s;
    case XKB_KEY_dead_circumflex:
        return u"^"_s;
    case XKB_KEY_dead_tilde:
        return u"~"_s;
    case XKB_KEY_dead_macron:
        return u"¯"_s;
    case XKB_KEY_dead_breve:
        return u"˘"_s;
    case XKB_KEY_dead_abovedot:
        return u"˙"_s;
    case XKB_KEY_dead_diaeresis:
        return u"¨"_s;
    case XKB_KEY_dead_abovering:
        return u"°"_s;
    case XKB_KEY_dead_doubleacute:
        return u"˝"_s;
    case XKB_KEY_dead_caron:
        return u"ˇ"_s;
    case XKB_KEY_dead_cedilla:
        return u"¸"_s;
    case XKB_KEY_dead_ogonek:
        return u"˛"_s;
    case XKB_KEY_dead_stroke:
        return u"/"_s;
    case XKB_KEY_dead_greek:
        return u"µ"_s;
    case XKB_KEY_dead_currency:
        return u"¤"_s;
    default:
        return {};
    }
}

} // namespace keyvora
