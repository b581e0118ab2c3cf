// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11KeyboardLayout.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/linux/XcbXkb.h"

#include <QPointer>

#include <X11/keysym.h>
#include <algorithm>
#include <span>
#include <vector>

namespace keyvora {

namespace {

constexpr uint16_t mapParts =
    XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
constexpr uint8_t groupCountMask = 0x0f;
constexpr uint8_t redirectGroupMask = 0x30;
constexpr uint8_t redirectGroupShift = 4;
constexpr int maximumGroups = 4;

using Types = std::vector<const xcb_xkb_key_type_t *>;

int levelOf(const xcb_xkb_key_type_t &type, quint32 modifiers)
{
    const std::span entries(xcb_xkb_key_type_map(&type),
                            static_cast<size_t>(xcb_xkb_key_type_map_length(&type)));
    for (const xcb_xkb_kt_map_entry_t &entry : entries) {
        if (entry.active != 0 && entry.mods_mask == (modifiers & type.mods_mask))
            return entry.level;
    }
    return 0;
}

XkbKeyMap::OutOfRange outOfRange(uint8_t groupInfo)
{
    if ((groupInfo & XCB_XKB_GROUPS_WRAP_REDIRECT_INTO_RANGE) != 0)
        return XkbKeyMap::OutOfRange::Redirect;
    if ((groupInfo & XCB_XKB_GROUPS_WRAP_CLAMP_INTO_RANGE) != 0)
        return XkbKeyMap::OutOfRange::Clamp;
    return XkbKeyMap::OutOfRange::Wrap;
}

XkbKeyMap::Key readKey(const xcb_xkb_key_sym_map_t &key, const Types &types, quint32 numLockBit)
{
    XkbKeyMap::Key result{
        .groups = {},
        .outOfRange = outOfRange(key.groupInfo),
        .redirectGroup = (key.groupInfo & redirectGroupMask) >> redirectGroupShift,
    };
    const xcb_keysym_t *first = xcb_xkb_key_sym_map_syms(&key);
    const QList<xcb_keysym_t> symbols(first, first + xcb_xkb_key_sym_map_syms_length(&key));
    const int groupCount = std::min(key.groupInfo & groupCountMask, maximumGroups);
    for (int group = 0; group < groupCount; ++group) {
        const uint8_t type = key.kt_index[group];
        const auto symbolWith = [&](quint32 modifiers) {
            const int level = type < types.size() ? levelOf(*types[type], modifiers) : 0;
            const int place = group * key.width + level;
            return level < key.width && place < symbols.size() ? symbols.at(place) : quint32{XCB_NO_SYMBOL};
        };
        result.groups.append({.symbol = symbolWith(0), .symbolWithNumLock = symbolWith(numLockBit)});
    }
    return result;
}

quint32 numLockBitOf(const xcb_xkb_get_map_reply_t &reply, const xcb_xkb_get_map_map_t &parts)
{
    quint32 bits = 0;
    auto modifiers = xcb_xkb_get_map_map_modmap_rtrn_iterator(&reply, &parts);
    for (; modifiers.rem > 0; xcb_xkb_key_mod_map_next(&modifiers)) {
        auto keys = xcb_xkb_get_map_map_syms_rtrn_iterator(&reply, &parts);
        for (int code = reply.firstKeySym; keys.rem > 0; ++code, xcb_xkb_key_sym_map_next(&keys)) {
            if (code == modifiers.data->keycode && xcb_xkb_key_sym_map_syms_length(keys.data) > 0 &&
                *xcb_xkb_key_sym_map_syms(keys.data) == XK_Num_Lock)
                bits |= modifiers.data->mods;
        }
    }
    return bits;
}

XkbKeyMap readKeys(const xcb_xkb_get_map_reply_t &reply)
{
    xcb_xkb_get_map_map_t parts{};
    xcb_xkb_get_map_map_unpack(xcb_xkb_get_map_map(&reply), reply.nTypes, reply.nKeySyms, reply.nKeyActions,
                               reply.totalActions, reply.totalKeyBehaviors, reply.virtualMods,
                               reply.totalKeyExplicit, reply.totalModMapKeys, reply.totalVModMapKeys,
                               reply.present, &parts);
    Types types;
    auto type = xcb_xkb_get_map_map_types_rtrn_iterator(&reply, &parts);
    for (; type.rem > 0; xcb_xkb_key_type_next(&type))
        types.push_back(type.data);
    XkbKeyMap map{.firstKey = reply.firstKeySym, .numLockBit = numLockBitOf(reply, parts)};
    auto key = xcb_xkb_get_map_map_syms_rtrn_iterator(&reply, &parts);
    for (; key.rem > 0; xcb_xkb_key_sym_map_next(&key))
        map.keys.append(readKey(*key.data, types, map.numLockBit));
    return map;
}

} // namespace

X11KeyboardLayout::X11KeyboardLayout(X11Connection &connection, const X11Keyboard &keyboard, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
{
    if (m_connection.extension(xcb_xkb_id) == nullptr)
        return;
    connect(&keyboard, &X11Keyboard::mapChanged, this, &X11KeyboardLayout::followMap);
    readMap();
}

std::optional<KeyboardLayout::Key> X11KeyboardLayout::key(quint32 scanCode, quint32 symbol,
                                                          quint32 state) const
{
    return m_map ? m_map->key(scanCode, symbol, state) : std::nullopt;
}

void X11KeyboardLayout::followMap()
{
    if (m_isReading)
        m_isStale = true;
    else
        readMap();
}

void X11KeyboardLayout::readMap()
{
    m_isReading = true;
    m_isStale = false;
    const auto cookie = xcb_xkb_get_map(m_connection.xcb(), XCB_XKB_ID_USE_CORE_KBD, mapParts, 0, 0, 0, 0, 0,
                                        0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this)](const void *data) {
        if (!self)
            return;
        self->m_isReading = false;
        if (data != nullptr)
            self->m_map = readKeys(*static_cast<const xcb_xkb_get_map_reply_t *>(data));
        if (self->m_isStale)
            self->readMap();
    });
}

} // namespace keyvora
