// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>

#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace keyvora {

/// The other programs of an X11 desktop and, where there is none, the window manager. What a function does
/// has reached the server when it returns.
class X11Desktop
{
public:
    struct WindowProperties
    {
        QByteArray instance = {};
        QByteArray windowClass = {};
        std::optional<quint32> pid = {};
        QByteArray type = {};  ///< such as "_NET_WM_WINDOW_TYPE_DOCK"; empty for none
        QByteArray state = {}; ///< such as "_NET_WM_STATE_SKIP_TASKBAR"; empty for none
        QRect geometry = {0, 0, 100, 100};
        bool isPopup = false; ///< a window that the window manager has no part in
    };

    explicit X11Desktop(const QByteArray &display);

    /// Makes a window that is not shown.
    xcb_window_t makeWindow(const WindowProperties &properties);
    void show(xcb_window_t window);
    void destroy(xcb_window_t window);

    /// What the window manager announces: one value, as a rule.
    void setActiveWindow(const QList<quint32> &values);

    /// The windows of the task list, as the window manager announces them.
    void setClientList(const QList<quint32> &windows);

    /// Whether nobody else has the whole keyboard; it is taken then.
    bool grabKeyboard();
    /// Takes all input from everybody else, as an open menu does.
    void grabInput();
    void ungrabInput();
    /// Whether nobody else has the combination (`XCB_MOD_MASK_…`); it is taken then.
    bool grabKey(uint16_t modifiers, xcb_keycode_t key);
    void ungrabKey(uint16_t modifiers, xcb_keycode_t key);

    void setProperty(xcb_window_t window, const QByteArray &name, xcb_atom_t type, const QByteArray &bytes);
    void setRootProperty(const QByteArray &name, xcb_atom_t type, const QByteArray &bytes);
    void removeRootProperty(const QByteArray &name);

    /// Whether a window manager has taken its place.
    [[nodiscard]] bool hasWindowManager();

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
    };

    xcb_atom_t atom(const QByteArray &name);
    void setNumbers(xcb_window_t window, const QByteArray &name, xcb_atom_t type,
                    const QList<quint32> &values);
    void finish();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_screen_t *m_screen;
};

} // namespace keyvora
