// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/InputMonitor.h"

#include <functional>
#include <optional>
#include <xcb/xcb.h>

namespace keyvora {

class X11Connection;
class X11Keyboard;

/// Watches through the keyboard extension, whose state events carry modifiers and no keys, and through raw
/// button events, which arrive whoever has grabbed the pointer. A popup is a window that the window manager
/// has no part in; whose it is, the server knows.
/// https://www.x.org/releases/current/doc/kbproto/xkbproto.html
/// https://www.x.org/releases/current/doc/inputproto/XI2proto.txt
class X11InputMonitor : public InputMonitor
{
    Q_OBJECT

public:
    /// Whether a window of our own has the focus.
    using OwnFocus = std::function<bool()>;

    /// Asks the server at once what it can do. The connection and its keyboard outlive the monitor.
    X11InputMonitor(X11Connection &connection, X11Keyboard &keyboard, OwnFocus hasOwnFocus,
                    QObject *parent = nullptr);

    [[nodiscard]] bool isAvailable() const override;
    void watchModifiers() override;
    [[nodiscard]] QFuture<KeyModifiers> currentModifiers() override;
    void setWatchesPopupPresses(bool watches) override;

private:
    void askForButtons();
    void handleEvent(const xcb_generic_event_t *event);
    void handleState(const xcb_generic_event_t *event);
    void handleButton(const xcb_generic_event_t *event);
    void pointerFound(QPoint position, xcb_window_t window);
    void popupFound(QPoint position, xcb_window_t popup);
    void ownerFound(QPoint position, qint32 pid);
    /// What bits of held and locked modifiers mean on this keyboard.
    [[nodiscard]] KeyModifiers modifiers(uint8_t held, uint8_t locked) const;

    X11Connection &m_connection;
    OwnFocus m_hasOwnFocus;
    X11Keyboard &m_keyboard;
    bool m_hasRawEvents = false;
    bool m_hasClientIds = false;
    bool m_watchesModifiers = false;
    bool m_watchesPresses = false;
    KeyModifiers m_told; ///< with the latest signal
    /// Nothing as long as it is not known what was held at the beginning.
    std::optional<KeyModifiers> m_latest;
};

} // namespace keyvora
