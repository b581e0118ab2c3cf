// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

#include <optional>
#include <vector>
#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;

/// Which keys and modifier bits mean what, as the user's layout has it. Knows nothing of keys that are
/// pressed.
class X11Keyboard : public QObject
{
    Q_OBJECT

public:
    /// The modifier bits (`XCB_MOD_MASK_…`) that differ from keyboard to keyboard.
    struct Mapping
    {
        quint8 alt = 0;
        quint8 super = 0;
        quint8 numLock = 0;
        QList<xcb_keycode_t> spaceKeys;

        friend bool operator==(const Mapping &, const Mapping &) = default;
    };

    /// Asks for the mapping; it comes from the event loop. The connection outlives the keyboard.
    explicit X11Keyboard(X11Connection &connection, QObject *parent = nullptr);

    /// Nothing until the server has told.
    [[nodiscard]] const std::optional<Mapping> &mapping() const { return m_mapping; }

    /// Whether the server has the keyboard extension and speaks our version of it.
    [[nodiscard]] bool hasExtension() const { return m_hasExtension; }

signals:
    /// The server has another map of the keys now, or of their modifiers.
    void mapChanged();
    /// The mapping became known or is another one now.
    void mappingChanged();

private:
    struct Symbols
    {
        uint8_t perKey = 0;
        std::vector<xcb_keysym_t> symbols;
    };

    void useExtension();
    void handleEvent(const xcb_generic_event_t *event);
    void readMapping();
    void mappingRead(const Symbols &symbols, const xcb_get_modifier_mapping_reply_t *modifiers);

    X11Connection &m_connection;
    std::optional<uint8_t> m_extensionEvent; ///< the type of the extension's events
    bool m_hasExtension = false;
    std::optional<Mapping> m_mapping;
    bool m_isReading = false;
    bool m_isStale = false; ///< the mapping changed while it was being read
};

} // namespace keyvora
