// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT
//
// A program that shows one window, for tests that need one of another process:
//
//     keyvora_other_program popup|window X Y WIDTH HEIGHT
//
// Writes a line when the window is there, and ends with its standard input.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

int main(int argc, char **argv)
{
    if (argc != 6)
        return EXIT_FAILURE;
    const auto number = [&](int place) {
        return static_cast<short>(std::strtol(argv[place], nullptr, 10));
    };
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return EXIT_FAILURE;
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    const uint32_t isPopup = std::strcmp(argv[1], "popup") == 0 ? 1 : 0;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, number(2), number(3),
                      static_cast<uint16_t>(number(4)), static_cast<uint16_t>(number(5)), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &isPopup);
    xcb_map_window(connection, window);
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    std::puts("shown");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    xcb_disconnect(connection);
    return EXIT_SUCCESS;
}
