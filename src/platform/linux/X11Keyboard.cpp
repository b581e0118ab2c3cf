// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/X11Keyboard.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/XcbXkb.h"

#include <QPointer>

#include <X11/keysym.h>
#include <memory>
#include <span>
#include <utility>

namespace keyvora {

namespace {

constexpr int modifierCount = 8;

std::span<const xcb_keysym_t> symbolsOfKey(xcb_keycode_t key, xcb_keycode_t firstKey, uint8_t perKey,
                                           std::span<const xcb_keysym_t> symbols)
{
    if (key < firstKey)
        return {};
    const size_t offset = static_cast<size_t>(key - firstKey) * perKey;
    if (offset + perKey > symbols.size())
        return {};
    return symbols.subspan(offset, perKey);
}

/// Adds the modifier bit to what the symbol on its key stands for.
void addModifier(X11Keyboard::Mapping &mapping, xcb_keysym_t symbol, uint8_t bit)
{
    switch (symbol) {
    case XK_Alt_L:
    case XK_Alt_R:
        mapping.alt |= bit;
        break;
    case XK_Super_L:
    case XK_Super_R:
        mapping.super |= bit;
        break;
    case XK_Num_Lock:
        mapping.numLock |= bit;
        break;
    default:
        break;
    }
}

} // namespace

X11Keyboard::X11Keyboard(X11Connection &connection, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
{
    connect(&m_connection, &X11Connection::eventReceived, this, &X11Keyboard::handleEvent);
    useExtension();
    readMapping();
}

void X11Keyboard::useExtension()
{
    const xcb_query_extension_reply_t *extension = m_connection.extension(xcb_xkb_id);
    if (extension == nullptr)
        return;
    m_extensionEvent = extension->first_event;
    const auto cookie =
        xcb_xkb_use_extension(m_connection.xcb(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    m_connection.expectReply(cookie.sequence, [self = QPointer(this)](const void *data) {
        const auto *reply = static_cast<const xcb_xkb_use_extension_reply_t *>(data);
        if (self)
            self->m_hasExtension = reply != nullptr && reply->supported != 0;
    });
    // Whoever uses the extension is not told by core events any more when another keyboard takes over.
    constexpr uint16_t mapParts =
        XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
    const xcb_xkb_select_events_details_t noDetails{};
    xcb_xkb_select_events_aux(m_connection.xcb(), XCB_XKB_ID_USE_CORE_KBD,
                              XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY, 0,
                              XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY, mapParts, mapParts, &noDetails);
}

void X11Keyboard::handleEvent(const xcb_generic_event_t *event)
{
    // The extension's events have one type and, in the place that others use for details, their kind.
    const bool isChange = event->response_type == XCB_MAPPING_NOTIFY ||
                          (event->response_type == m_extensionEvent &&
                           (event->pad0 == XCB_XKB_NEW_KEYBOARD_NOTIFY || event->pad0 == XCB_XKB_MAP_NOTIFY));
    if (!isChange)
        return;
    emit mapChanged();
    // Changes come in bursts, one for each key.
    if (m_isReading)
        m_isStale = true;
    else
        readMapping();
}

void X11Keyboard::readMapping()
{
    m_isReading = true;
    m_isStale = false;
    const xcb_setup_t *setup = xcb_get_setup(m_connection.xcb());
    const auto symbols = std::make_shared<Symbols>();
    const auto keys =
        xcb_get_keyboard_mapping(m_connection.xcb(), setup->min_keycode,
                                 static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1));
    m_connection.expectReply(keys.sequence, [symbols](const void *data) {
        const auto *reply = static_cast<const xcb_get_keyboard_mapping_reply_t *>(data);
        if (reply == nullptr)
            return;
        symbols->perKey = reply->keysyms_per_keycode;
        const xcb_keysym_t *first = xcb_get_keyboard_mapping_keysyms(reply);
        symbols->symbols.assign(first, first + xcb_get_keyboard_mapping_keysyms_length(reply));
    });
    // Answers come in the order of the questions, so that this one completes the mapping.
    const auto modifiers = xcb_get_modifier_mapping(m_connection.xcb());
    m_connection.expectReply(modifiers.sequence, [self = QPointer(this), symbols](const void *data) {
        if (self)
            self->mappingRead(*symbols, static_cast<const xcb_get_modifier_mapping_reply_t *>(data));
    });
}

void X11Keyboard::mappingRead(const Symbols &symbols, const xcb_get_modifier_mapping_reply_t *modifiers)
{
    m_isReading = false;
    const xcb_setup_t *setup = xcb_get_setup(m_connection.xcb());
    const auto symbolsOf = [&](xcb_keycode_t key) {
        return symbolsOfKey(key, setup->min_keycode, symbols.perKey, symbols.symbols);
    };
    Mapping mapping;
    for (int key = setup->min_keycode; key <= setup->max_keycode; ++key) {
        const auto onKey = symbolsOf(static_cast<xcb_keycode_t>(key));
        if (!onKey.empty() && onKey.front() == XK_space)
            mapping.spaceKeys.append(static_cast<xcb_keycode_t>(key));
    }
    const int keysPerModifier = modifiers != nullptr ? modifiers->keycodes_per_modifier : 0;
    for (int modifier = 0; modifier < modifierCount; ++modifier) {
        for (int place = 0; place < keysPerModifier; ++place) {
            const xcb_keycode_t key =
                xcb_get_modifier_mapping_keycodes(modifiers)[modifier * keysPerModifier + place];
            for (const xcb_keysym_t symbol : symbolsOf(key))
                addModifier(mapping, symbol, static_cast<uint8_t>(1U << static_cast<unsigned>(modifier)));
        }
    }
    if (m_mapping != mapping) {
        m_mapping = std::move(mapping);
        emit mappingChanged();
    }
    if (m_isStale)
        readMapping();
}

} // namespace keyvora
