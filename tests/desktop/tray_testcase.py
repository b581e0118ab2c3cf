# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The base of the tests that use the tray icon."""

import tray_hosts

from desktop import pointer, windows
from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase

SCREEN_WIDTH, SCREEN_HEIGHT = 1280, 800
WIDTH = 330
GAP = 8


class TrayTestCase(KeyvoraTestCase):
    """The program has been used before, so that it starts into the tray."""

    def setUp(self):
        super().setUp()
        self.defaults.write({"hasLaunchedBefore": True, "hasSeenOnboarding": True})

    def host(self, start):
        host = start()
        self.addCleanup(self.end, host)
        return host

    @staticmethod
    def end(host):
        if host.poll() is None:
            host.kill()
            host.wait()

    def click_icon(self, host):
        """Returns where it was clicked."""
        icon = tray_hosts.find_tray_icon(host)
        pointer.click_at(*icon)
        return icon

    def open_panel(self, host):
        self.click_icon(host)
        return self.see_panel()

    def see_panel(self):
        return self.see(Role.PUSH_BUTTON, "Open Library")

    def see_no_panel(self):
        self.see_gone(Role.PUSH_BUTTON, "Open Library")

    def panel(self):
        """Where the panel's window is, or nothing."""
        for window in windows.of_process(self.program.pid):
            place = windows.frame_free_geometry(window) if windows.is_shown(window) else None
            if place and place.width == WIDTH:
                return place
        return None

    def see_beside(self, icon, edge, screen=(0, 0, SCREEN_WIDTH, SCREEN_HEIGHT)):
        """Waits until the panel is whole on the screen, on the inner side of its edge, as near to the icon as it can."""

        def is_beside():
            panel = self.panel()
            return panel and is_beside_icon(panel, icon, edge, screen)

        self.wait_for(is_beside, f"the panel is at the {edge} beside {icon}")


def is_beside_icon(panel, icon, edge, screen):
    left, top, width, height = screen
    right, bottom = left + width, top + height
    # From the middle of the icon to the panel: half a bar and the gap.
    away = {
        "top": panel.y - icon[1],
        "bottom": icon[1] - panel.y - panel.height,
        "left": panel.x - icon[0],
        "right": icon[0] - panel.x - panel.width,
    }[edge]
    is_along = edge in ("top", "bottom")
    start, length = (panel.x, panel.width) if is_along else (panel.y, panel.height)
    first, last = (left, right) if is_along else (top, bottom)
    middle = icon[0] if is_along else icon[1]
    best = max(first + GAP, min(middle - length // 2, last - GAP - length))
    is_whole = left <= panel.x and panel.x + panel.width <= right and top <= panel.y and panel.y + panel.height <= bottom
    # Hosts tell the point of the icon that was clicked, or one of its own.
    return is_whole and GAP < away <= 48 and abs(start - best) <= 24
