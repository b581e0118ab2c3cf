// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/XkbKeyMap.h"

#include "platform/linux/KeysymToken.h"

#include <xkbcommon/xkbcommon.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 groupShift = 13; ///< where the state has the group
constexpr quint32 groupMask = 3;

bool isModifierOrLock(quint32 symbol)
{
    return (symbol >= XKB_KEY_Shift_L && symbol <= XKB_KEY_Hyper_R) ||
           (symbol >= XKB_KEY_ISO_Lock && symbol <= XKB_KEY_ISO_Level5_Lock) ||
           symbol == XKB_KEY_Mode_switch || symbol == XKB_KEY_Num_Lock || symbol == XKB_KEY_Scroll_Lock;
}

/// The token with its letter in capitals; words stay as they are, and so do letters like "ß" whose capital
/// would be two.
QString capitalToken(quint32 symbol)
{
    QString token = keysymToken(symbol);
    if (token.isEmpty())
        return accentToken(symbol);
    const QList<uint> characters = token.toUcs4();
    if (characters.size() != 1)
        return token;
    const char32_t capital = QChar::toUpper(static_cast<char32_t>(characters.constFirst()));
    return QString::fromUcs4(&capital, 1);
}

bool isLetter(const QString &token)
{
    return token.size() == 1 && token.front().isLetter();
}

bool isLatin(const QString &token)
{
    return isLetter(token) && token.front().script() == QChar::Script_Latin;
}

/// What the American layout has on the keys that print, the one between Shift and Z of European keyboards
/// included.
QString americanToken(quint32 scanCode)
{
    struct Row
    {
        quint32 firstKey;
        QStringView keys;
    };
    static constexpr Row rows[] = {
        {10, u"1234567890−="},
        {24, u"QWERTYUIOP[]"},
        {38, u"ASDFGHJKL;'`"},
        {51, u"\\ZXCVBNM,./"},
        {94, u"<"},
    };
    for (const auto &[firstKey, keys] : rows) {
        if (scanCode >= firstKey && scanCode - firstKey < static_cast<quint32>(keys.size()))
            return keys.at(scanCode - firstKey);
    }
    return {};
}

const XkbKeyMap::Group *effectiveGroup(const XkbKeyMap::Key &key, quint32 state)
{
    const qsizetype count = key.groups.size();
    if (count == 0)
        return nullptr;
    qsizetype group = (state >> groupShift) & groupMask;
    if (group >= count) {
        switch (key.outOfRange) {
        case XkbKeyMap::OutOfRange::Wrap:
            group %= count;
            break;
        case XkbKeyMap::OutOfRange::Clamp:
            group = count - 1;
            break;
        case XkbKeyMap::OutOfRange::Redirect:
            group = key.redirectGroup < count ? key.redirectGroup : 0;
            break;
        }
    }
    return &key.groups.at(group);
}

QString latinToken(const XkbKeyMap::Key &key, quint32 scanCode)
{
    for (const XkbKeyMap::Group &group : key.groups) {
        QString token = capitalToken(group.symbol);
        if (isLatin(token))
            return token;
    }
    return americanToken(scanCode);
}

} // namespace

std::optional<KeyboardLayout::Key> XkbKeyMap::key(quint32 scanCode, quint32 symbol, quint32 state) const
{
    if (scanCode < firstKey || scanCode - firstKey >= static_cast<quint32>(keys.size()) ||
        isModifierOrLock(symbol))
        return std::nullopt;
    const Key &found = keys.at(scanCode - firstKey);
    KeyboardLayout::Key result{.plain = {}, .typed = capitalToken(symbol), .latin = {}};
    if (const Group *group = effectiveGroup(found, state))
        result.plain = capitalToken((state & numLockBit) != 0 ? group->symbolWithNumLock : group->symbol);
    if (isLetter(result.plain) && !isLatin(result.plain))
        result.latin = latinToken(found, scanCode);
    return result;
}

} // namespace keyvora
