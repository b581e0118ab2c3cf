// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/KeyToken.h"

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

QString characterToken(char32_t character)
{
    if (character == U'-')
        return u"\u2212"_s;
    const QString text = QString::fromUcs4(&character, 1);
    // Blanks of other kinds, such as the one that does not break lines, are on the space bar, too.
    if (text.at(0).isPrint() && text.at(0).isSpace())
        return u"Space"_s;
    return text.at(0).isPrint() || text.at(0).isSurrogate() ? text : QString();
}

QString qtKeyToken(int key)
{
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return u'F' + QString::number(key - Qt::Key_F1 + 1);
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return u"Return"_s;
    case Qt::Key_Escape:
        return u"Esc"_s;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return u"Tab"_s;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        return u"Delete"_s;
    case Qt::Key_Left:
        return u"←"_s;
    case Qt::Key_Right:
        return u"→"_s;
    case Qt::Key_Up:
        return u"↑"_s;
    case Qt::Key_Down:
        return u"↓"_s;
    case Qt::Key_PageUp:
        return u"Page Up"_s;
    case Qt::Key_PageDown:
        return u"Page Down"_s;
    case Qt::Key_Home:
        return u"Home"_s;
    case Qt::Key_End:
        return u"End"_s;
    case Qt::Key_Insert:
        return u"Insert"_s;
    default:
        // Beyond Unicode lie the keys without a character.
        return key > 0 && key < 0x110000 ? characterToken(static_cast<char32_t>(key)) : QString();
    }
}

} // namespace keyvora
