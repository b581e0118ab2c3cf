# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The tray icon in real status areas, and the panel that it opens."""

import unittest

import tray_hosts
from desktop import pointer, windows
from desktop.accessibility import Role
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase


class TrayTestCase(KeyvoraTestCase):
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
        pointer.click_at(*tray_hosts.find_tray_icon(host))

    def open_panel(self, host):
        self.click_icon(host)
        return self.see(Role.PUSH_BUTTON, "Open Library")


class AnyHost:
    """What holds in every status area; the classes below say in which."""

    start_host = None

    def test_the_icon_is_there_when_the_host_was_there_first(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        self.open_panel(host)

    def test_the_icon_appears_when_the_host_comes_later(self):
        self.launch_resting()
        host = self.host(type(self).start_host)
        self.open_panel(host)

    def test_the_icon_comes_back_when_the_host_starts_again(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        tray_hosts.find_tray_icon(host)
        self.end(host)
        again = self.host(type(self).start_host)
        self.open_panel(again)

    def test_the_panel_lies_near_the_icon_and_whole_on_the_screen(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        icon_x, icon_y = tray_hosts.find_tray_icon(host)
        self.open_panel(host)
        panel = self.wait_for(lambda: self.panel_geometry(), "the panel has a place")
        self.assertGreaterEqual(panel.x, 0)
        self.assertGreaterEqual(panel.y, 0)
        self.assertLessEqual(panel.x + panel.width, 1280)
        self.assertLessEqual(panel.y + panel.height, 800)
        self.assertLess(abs(panel.x + panel.width / 2 - icon_x), panel.width)
        self.assertLess(abs(panel.y - icon_y), 100)

    def panel_geometry(self):
        shown = [window for window in windows.of_process(self.program.pid) if windows.is_shown(window)]
        return windows.frame_free_geometry(shown[0]) if shown else None

    def test_a_start_by_a_person_opens_no_window_where_the_icon_can_be_seen(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        tray_hosts.find_tray_icon(host)
        self.assertEqual(0, self.program.terminate())
        self.launch_resting(DESKTOP_STARTUP_ID="launcher-0-desktop_TIME0")
        self.open_panel(host)


class XfcePanelTest(AnyHost, TrayTestCase):
    start_host = staticmethod(tray_hosts.start_xfce_panel)


class TrayerTest(AnyHost, TrayTestCase):
    start_host = staticmethod(tray_hosts.start_trayer)


class Tint2Test(AnyHost, TrayTestCase):
    start_host = staticmethod(tray_hosts.start_tint2)


class PanelTest(TrayTestCase):
    def setUp(self):
        super().setUp()
        self.tray = self.host(tray_hosts.start_xfce_panel)
        self.launch_resting()

    def test_opens_the_library(self):
        pointer.click(self.open_panel(self.tray))
        self.window(self.program, WINDOW_TITLE)
        self.see(Role.HEADING, "Library")
        self.see_gone(Role.PUSH_BUTTON, "Open Library")

    def test_quits(self):
        self.open_panel(self.tray)
        pointer.click(self.see(Role.PUSH_BUTTON, "Quit"))
        self.assertEqual(0, self.program.wait())

    def test_escape_closes_it(self):
        self.open_panel(self.tray)
        self.keys("Escape")
        self.see_gone(Role.PUSH_BUTTON, "Open Library")

    def test_works_from_the_keyboard(self):
        self.open_panel(self.tray)
        self.keys("Return")
        self.see(Role.HEADING, "Library")

    def test_closes_when_another_window_is_used(self):
        mousepad = self.start("mousepad", "--disable-server")
        self.window(mousepad)
        self.open_panel(self.tray)
        self.activate(mousepad)
        self.see_gone(Role.PUSH_BUTTON, "Open Library")


if __name__ == "__main__":
    unittest.main()
