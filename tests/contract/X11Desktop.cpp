// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/X11Desktop.h"

#include "platform/linux/XcbData.h"

namespace keyvora {

namespace {

constexpr uint8_t bitsOfBytes = 8;
constexpr uint8_t bitsOfNumbers = 32;

} // namespace

X11Desktop::X11Desktop(const QByteArray &display)
    : m_connection(xcb_connect(display.constData(), nullptr))
    , m_screen(xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data)
{
}

xcb_window_t X11Desktop::makeWindow(const WindowProperties &properties)
{
    const xcb_window_t window = xcb_generate_id(m_connection.get());
    const QRect &geometry = properties.geometry;
    const uint32_t isPopup = properties.isPopup ? 1 : 0;
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, window, m_screen->root,
                      static_cast<int16_t>(geometry.x()), static_cast<int16_t>(geometry.y()),
                      static_cast<uint16_t>(geometry.width()), static_cast<uint16_t>(geometry.height()), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &isPopup);
    if (!properties.instance.isNull() || !properties.windowClass.isNull())
        setProperty(window, "WM_CLASS", XCB_ATOM_STRING,
                    properties.instance + '\0' + properties.windowClass + '\0');
    if (properties.pid)
        setNumbers(window, "_NET_WM_PID", XCB_ATOM_CARDINAL, {*properties.pid});
    if (!properties.type.isEmpty())
        setNumbers(window, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {atom(properties.type)});
    if (!properties.state.isEmpty())
        setNumbers(window, "_NET_WM_STATE", XCB_ATOM_ATOM, {atom(properties.state)});
    finish();
    return window;
}

void X11Desktop::show(xcb_window_t window)
{
    xcb_map_window(m_connection.get(), window);
    finish();
}

void X11Desktop::destroy(xcb_window_t window)
{
    xcb_destroy_window(m_connection.get(), window);
    finish();
}

void X11Desktop::setActiveWindow(const QList<quint32> &values)
{
    setNumbers(m_screen->root, "_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, values);
}

void X11Desktop::setClientList(const QList<quint32> &windows)
{
    setNumbers(m_screen->root, "_NET_CLIENT_LIST", XCB_ATOM_WINDOW, windows);
}

bool X11Desktop::grabKeyboard()
{
    const auto cookie = xcb_grab_keyboard(m_connection.get(), 1, m_screen->root, XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XcbOwned<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection.get(), cookie, nullptr));
    return reply != nullptr && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void X11Desktop::grabInput()
{
    xcb_grab_keyboard(m_connection.get(), 1, m_screen->root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                      XCB_GRAB_MODE_ASYNC);
    xcb_grab_pointer(m_connection.get(), 1, m_screen->root, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME);
    finish();
}

void X11Desktop::ungrabInput()
{
    xcb_ungrab_keyboard(m_connection.get(), XCB_CURRENT_TIME);
    xcb_ungrab_pointer(m_connection.get(), XCB_CURRENT_TIME);
    finish();
}

bool X11Desktop::grabKey(uint16_t modifiers, xcb_keycode_t key)
{
    const auto cookie = xcb_grab_key_checked(m_connection.get(), 0, m_screen->root, modifiers, key,
                                             XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XcbOwned<xcb_generic_error_t> error(xcb_request_check(m_connection.get(), cookie));
    return error == nullptr;
}

void X11Desktop::ungrabKey(uint16_t modifiers, xcb_keycode_t key)
{
    xcb_ungrab_key(m_connection.get(), key, m_screen->root, modifiers);
    finish();
}

void X11Desktop::setProperty(xcb_window_t window, const QByteArray &name, xcb_atom_t type,
                             const QByteArray &bytes)
{
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, window, atom(name), type, bitsOfBytes,
                        static_cast<uint32_t>(bytes.size()), bytes.constData());
    finish();
}

void X11Desktop::setRootProperty(const QByteArray &name, xcb_atom_t type, const QByteArray &bytes)
{
    setProperty(m_screen->root, name, type, bytes);
}

void X11Desktop::removeRootProperty(const QByteArray &name)
{
    xcb_delete_property(m_connection.get(), m_screen->root, atom(name));
    finish();
}

bool X11Desktop::hasWindowManager()
{
    const auto cookie = xcb_get_property(m_connection.get(), 0, m_screen->root,
                                         atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1);
    const XcbOwned<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection.get(), cookie, nullptr));
    return reply && xcb_get_property_value_length(reply.get()) > 0;
}

xcb_atom_t X11Desktop::atom(const QByteArray &name)
{
    const auto cookie =
        xcb_intern_atom(m_connection.get(), 0, static_cast<uint16_t>(name.size()), name.constData());
    const XcbOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection.get(), cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

void X11Desktop::setNumbers(xcb_window_t window, const QByteArray &name, xcb_atom_t type,
                            const QList<quint32> &values)
{
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, window, atom(name), type, bitsOfNumbers,
                        static_cast<uint32_t>(values.size()), values.constData());
    finish();
}

void X11Desktop::finish()
{
    // Requests are carried out in order, so that an answer to this one tells about all before it.
    const auto cookie = xcb_get_input_focus(m_connection.get());
    std::free(xcb_get_input_focus_reply(m_connection.get(), cookie, nullptr));
}

} // namespace keyvora
