// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/X11Input.h"

#include "platform/linux/XcbXkb.h"

#include <cstdlib>
#include <xcb/xtest.h>

namespace keyvora {

X11Input::X11Input(const QByteArray &display)
    : m_connection(xcb_connect(display.constData(), nullptr))
    , m_root(xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root)
{
}

xcb_keycode_t X11Input::keyOf(xcb_keysym_t symbol)
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection.get());
    const auto cookie =
        xcb_get_keyboard_mapping(m_connection.get(), setup->min_keycode,
                                 static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1));
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> reply(
        xcb_get_keyboard_mapping_reply(m_connection.get(), cookie, nullptr), &std::free);
    for (int key = setup->min_keycode; key <= setup->max_keycode; ++key) {
        const int place = (key - setup->min_keycode) * reply->keysyms_per_keycode;
        if (xcb_get_keyboard_mapping_keysyms(reply.get())[place] == symbol)
            return static_cast<xcb_keycode_t>(key);
    }
    return 0;
}

void X11Input::pressKey(xcb_keysym_t symbol)
{
    pressKeycode(keyOf(symbol));
}

void X11Input::releaseKey(xcb_keysym_t symbol)
{
    releaseKeycode(keyOf(symbol));
}

void X11Input::tapKeys(const QList<xcb_keysym_t> &symbols)
{
    for (auto symbol = symbols.cbegin(); symbol != symbols.cend(); ++symbol)
        pressKey(*symbol);
    for (auto symbol = symbols.crbegin(); symbol != symbols.crend(); ++symbol)
        releaseKey(*symbol);
}

void X11Input::pressKeycode(xcb_keycode_t key)
{
    send(XCB_KEY_PRESS, key);
}

void X11Input::releaseKeycode(xcb_keycode_t key)
{
    send(XCB_KEY_RELEASE, key);
}

void X11Input::movePointer(QPoint position)
{
    send(XCB_MOTION_NOTIFY, 0, position);
}

void X11Input::pressButton(int button)
{
    send(XCB_BUTTON_PRESS, static_cast<uint8_t>(button));
}

void X11Input::releaseButton(int button)
{
    send(XCB_BUTTON_RELEASE, static_cast<uint8_t>(button));
}

void X11Input::click(QPoint position)
{
    movePointer(position);
    pressButton(XCB_BUTTON_INDEX_1);
    releaseButton(XCB_BUTTON_INDEX_1);
}

void X11Input::switchLayout(int layout)
{
    const auto use = xcb_xkb_use_extension(m_connection.get(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    std::free(xcb_xkb_use_extension_reply(m_connection.get(), use, nullptr));
    xcb_xkb_latch_lock_state(m_connection.get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1,
                             static_cast<uint8_t>(layout), 0, 0, 0);
    finish();
}

void X11Input::send(uint8_t type, uint8_t detail, QPoint position)
{
    xcb_test_fake_input(m_connection.get(), type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<int16_t>(position.x()), static_cast<int16_t>(position.y()), 0);
    finish();
}

void X11Input::finish()
{
    // Requests are carried out in order, so that an answer to this one tells about all before it.
    std::free(
        xcb_get_input_focus_reply(m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}

} // namespace keyvora
