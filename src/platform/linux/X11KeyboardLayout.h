// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/KeyboardLayout.h"
#include "platform/linux/XkbKeyMap.h"

#include <QObject>

#include <optional>
#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;

/// The layout of an X11 keyboard, followed as it changes. `scanCode` is the key's code, `symbol` its keysym,
/// `state` that of the key event, the group included.
class X11KeyboardLayout : public QObject, public KeyboardLayout
{
    Q_OBJECT

public:
    /// Asks for the key map; it comes from the event loop. The connection outlives the layout.
    explicit X11KeyboardLayout(X11Connection &connection, QObject *parent = nullptr);

    [[nodiscard]] std::optional<Key> key(quint32 scanCode, quint32 symbol, quint32 state) const override;

private:
    void handleEvent(const xcb_generic_event_t *event);
    void readMap();

    X11Connection &m_connection;
    std::optional<uint8_t> m_extensionEvent; ///< the type of the extension's events
    std::optional<XkbKeyMap> m_map;
    bool m_isReading = false;
    bool m_isStale = false; ///< the map changed while it was being read
};

} // namespace keyvora
