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
class X11Keyboard;

/// The layout of an X11 keyboard, followed as it changes. `scanCode` is the key's code, `symbol` its keysym,
/// `state` that of the key event, the group included.
class X11KeyboardLayout : public QObject, public KeyboardLayout
{
    Q_OBJECT

public:
    /// Asks for the key map; it comes from the event loop. The connection and its keyboard outlive the
    /// layout.
    X11KeyboardLayout(X11Connection &connection, const X11Keyboard &keyboard, QObject *parent = nullptr);

    [[nodiscard]] std::optional<Key> key(quint32 scanCode, quint32 symbol, quint32 state) const override;

private:
    void followMap();
    void readMap();

    X11Connection &m_connection;
    std::optional<XkbKeyMap> m_map;
    bool m_isReading = false;
    bool m_isStale = false; ///< the map changed while it was being read
};

} // namespace keyvora
