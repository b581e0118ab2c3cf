// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QPoint>

#include <memory>
#include <xcb/xcb.h>

namespace keyvora {

/// A person at the keyboard and the mouse of a screen. What a function does has reached the server, and the
/// programs it concerns have been sent word, when it returns.
class X11Input
{
public:
    explicit X11Input(const QByteArray &display);

    /// The key that has this symbol without modifiers in the first layout; 0 for none.
    [[nodiscard]] xcb_keycode_t keyOf(xcb_keysym_t symbol);

    void pressKey(xcb_keysym_t symbol);
    void releaseKey(xcb_keysym_t symbol);
    /// Presses the keys one after the other and releases them in the opposite order.
    void tapKeys(const QList<xcb_keysym_t> &symbols);

    /// The same for keys that are known by their place.
    void pressKeycode(xcb_keycode_t key);
    void releaseKeycode(xcb_keycode_t key);

    void movePointer(QPoint position);
    void pressButton(int button);
    void releaseButton(int button);
    /// Presses and releases the left button at a place.
    void click(QPoint position);

    /// Switches to one of the keyboard's layouts, counted from zero.
    void switchLayout(int layout);

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    void send(uint8_t type, uint8_t detail, QPoint position = {});
    void finish();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root;
};

} // namespace keyvora
