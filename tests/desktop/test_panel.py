# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The panel that the tray icon opens: what it shows, where, and how it goes."""

import functools
import subprocess
import unittest

import tray_hosts
from tray_testcase import SCREEN_HEIGHT, SCREEN_WIDTH, TrayTestCase

from desktop import keyboard, pointer, windows
from desktop.accessibility import Role
from desktop.applications import Applications
from desktop.keyvora import WINDOW_TITLE

OWN = {
    "id": "custom-1",
    "title": "Take the Root",
    "detail": "Custom keyboard shortcut.",
    "keys": ["⌃", "R"],
    "category": "Text",
    "apps": ["Galculator"],
}


class PlaceTest(TrayTestCase):
    """At whichever edge the icon is."""

    def see_beside_the_icon(self, start_host):
        for edge in ("bottom", "left", "right"):
            with self.subTest(edge):
                host = self.host(functools.partial(start_host, edge))
                self.launch_resting()
                icon = self.click_icon(host)
                self.see_panel()
                self.see_beside(icon, edge)
                self.assertEqual(0, self.program.terminate())
                self.end(host)

    def test_in_a_panel_that_asks_icons_for_their_picture(self):
        self.see_beside_the_icon(tray_hosts.start_xfce_panel)

    def test_in_a_panel_that_embeds_windows(self):
        self.see_beside_the_icon(tray_hosts.start_tint2)

    def test_in_a_tray_that_reserves_no_space(self):
        self.see_beside_the_icon(tray_hosts.start_trayer)

    def test_comes_with_the_height_of_its_list(self):
        self.defaults.write({"hasLaunchedBefore": True, "hasSeenOnboarding": True, "customShortcuts": [OWN]})
        host = self.host(functools.partial(tray_hosts.start_xfce_panel, "bottom"))
        self.launch_resting()
        icon = self.click_icon(host)
        self.see_panel()
        self.see_beside(icon, "bottom")
        before = self.panel()
        pointer.move_to(SCREEN_WIDTH // 2, SCREEN_HEIGHT // 2)
        self.activate(self.start("galculator"))
        self.see_no_panel()
        self.click_icon(host)
        self.see(Role.LIST_ITEM, "Take the Root")
        self.see_beside(icon, "bottom")
        after = self.panel()
        self.assertLess(after.height, before.height)
        self.assertEqual(before.y + before.height, after.y + after.height)


class TwoMonitorsTest(TrayTestCase):
    """The screen is two monitors side by side."""

    def setUp(self):
        super().setUp()
        half = SCREEN_WIDTH // 2
        for name, x, output in (("left", 0, "screen"), ("right", half, "none")):
            place = f"{half}/{half // 4}x{SCREEN_HEIGHT}/{SCREEN_HEIGHT // 4}+{x}+0"
            subprocess.run(["xrandr", "--setmonitor", name, place, output], stdout=subprocess.DEVNULL, check=True)
            self.addCleanup(subprocess.run, ["xrandr", "--delmonitor", name], check=True)

    def test_opens_on_the_monitor_that_has_the_icon(self):
        half = SCREEN_WIDTH // 2
        for monitor, side in enumerate(("left", "right")):
            with self.subTest(side):
                host = self.host(functools.partial(tray_hosts.start_trayer, "top", monitor))
                self.launch_resting()
                icon = self.click_icon(host)
                is_right = icon[0] >= half
                self.see_panel()
                self.see_beside(icon, "top", (half if is_right else 0, 0, half, SCREEN_HEIGHT))
                self.assertEqual(side, "right" if is_right else "left")
                self.assertEqual(0, self.program.terminate())
                self.end(host)


class PanelTestCase(Applications, TrayTestCase):
    """The program rests in the tray, and an editor has the keyboard."""

    def setUp(self):
        super().setUp()
        self.defaults.write({"hasLaunchedBefore": True, "hasSeenOnboarding": True, "customShortcuts": [OWN]})
        self.tray = self.host(tray_hosts.start_xfce_panel)
        self.launch_resting()
        self.mousepad = self.start_mousepad()
        self.activate(self.mousepad)

    def rows(self):
        return [node.name for node in self.screen.find_all(Role.LIST_ITEM)]


class ContentTest(PanelTestCase):
    def test_tells_about_the_application_in_front(self):
        self.open_panel(self.tray)
        self.see(Role.HEADING, "Keyvora")
        self.see(name="Tips for Mousepad")
        self.see(Role.PUSH_BUTTON, "Show overlay for Mousepad")
        self.assertEqual(["Copy", "Paste", "Undo", "Redo"], self.rows())
        self.assertEqual("Command C", self.see(Role.LIST_ITEM, "Copy").description)
        self.wait_until_active(self.program)
        self.watch(lambda: not self.screen.find(name="Tips for Mousepad"), "the panel tells about its own program")

    def test_tells_about_another_one_when_it_opens_again(self):
        self.open_panel(self.tray)
        # Otherwise this could be one click, of a person who is very fast.
        pointer.move_to(SCREEN_WIDTH // 2, SCREEN_HEIGHT // 2)
        self.activate(self.start_galculator())
        self.see_no_panel()
        self.open_panel(self.tray)
        self.see(name="Tips for Galculator")
        self.assertEqual(["Take the Root"], self.rows())

    def test_follows_the_language_while_it_is_open(self):
        self.assertEqual(0, self.start_again())
        self.click(self.see(Role.LIST_ITEM, "Settings"))
        czech = self.see(Role.RADIO_BUTTON, "Čeština")
        self.activate(self.mousepad)
        self.open_panel(self.tray)
        czech.press()
        for name in ("Tipy pro Mousepad", "Kopírovat", "Zobrazit overlay pro Mousepad", "Otevřít knihovnu", "Ukončit"):
            self.see(name=name)


class ClosingTest(PanelTestCase):
    def test_escape_closes_it(self):
        self.open_panel(self.tray)
        self.keys("Escape")
        self.see_no_panel()

    def test_closes_when_another_window_is_used(self):
        self.open_panel(self.tray)
        self.wait_until_active(self.program)
        self.activate(self.mousepad)
        self.see_no_panel()

    def test_closes_when_another_window_is_clicked(self):
        self.open_panel(self.tray)
        self.wait_until_active(self.program)
        window = windows.frame_free_geometry(self.window(self.mousepad))
        pointer.click_at(window.x + 100, window.y + window.height - 100)
        self.see_no_panel()

    def test_a_click_on_the_icon_closes_it_and_the_next_opens_it(self):
        self.open_panel(self.tray)
        self.wait_until_active(self.program)
        self.click_icon(self.tray)
        self.see_no_panel()
        self.watch(self.panel, "the panel opens again")
        self.open_panel(self.tray)
        self.see_focus("Open Library")


class ButtonsTest(PanelTestCase):
    def overlay(self):
        return self.screen.find(Role.PANEL, "Shortcut overlay")

    def test_opens_the_library(self):
        pointer.click(self.open_panel(self.tray))
        self.window(self.program, WINDOW_TITLE)
        self.see(Role.HEADING, "Library")
        self.see_no_panel()

    def test_quits(self):
        self.open_panel(self.tray)
        pointer.click(self.see(Role.PUSH_BUTTON, "Quit"))
        self.assertEqual(0, self.program.wait())

    def test_shows_and_hides_the_overlay_and_stays(self):
        self.open_panel(self.tray)
        self.wait_until_active(self.program)
        button = self.see(Role.PUSH_BUTTON, "Show overlay for Mousepad")
        pointer.click(button)
        overlay = self.wait_for(self.overlay, "the overlay shows")
        self.see(Role.HEADING, "Mousepad")
        panel = self.panel()
        # Both belong into the same corner.
        self.wait_for(lambda: overlay.extents.y > panel.y + panel.height, "the overlay leaves the panel free")
        pointer.click(button)
        self.wait_for(lambda: not self.overlay(), "the overlay is gone")
        self.assertEqual(panel, self.panel())
        self.assertEqual(self.program.pid, windows.active_pid())

    def test_the_overlay_takes_its_corner_when_the_panel_closes(self):
        self.open_panel(self.tray)
        self.wait_until_active(self.program)
        pointer.click(self.see(Role.PUSH_BUTTON, "Show overlay for Mousepad"))
        overlay = self.wait_for(self.overlay, "the overlay shows")
        self.keys("Escape")
        self.wait_for(lambda: overlay.extents.y == windows.work_area().y + 22, "the overlay is in its corner")

    def test_works_from_the_keyboard(self):
        self.open_panel(self.tray)
        self.see_focus("Open Library")
        for keys, name in (
            ("Tab", "Quit"),
            ("Tab", "Show overlay for Mousepad"),
            ("Down", "Open Library"),
            ("Up", "Show overlay for Mousepad"),
        ):
            self.keys(keys)
            self.see_focus(name)
        keyboard.press("space")
        self.wait_for(self.overlay, "the overlay shows")
        keyboard.press("Return")
        self.wait_for(lambda: not self.overlay(), "the overlay is gone")
        keyboard.press("shift+Tab", "shift+Tab")
        self.see_focus("Open Library")
        keyboard.press("Return")
        self.see(Role.HEADING, "Library")


class CzechTest(PanelTestCase):
    def setUp(self):
        super().setUp()
        self.assertEqual(0, self.program.terminate())
        self.defaults.write({"hasLaunchedBefore": True, "hasSeenOnboarding": True, "appLanguage": "cs"})
        self.launch_resting()
        self.activate(self.mousepad)

    def test_speaks_czech(self):
        self.click_icon(self.tray)
        self.see(Role.PUSH_BUTTON, "Otevřít knihovnu")
        self.see(name="Tipy pro Mousepad")
        self.see(Role.PUSH_BUTTON, "Zobrazit overlay pro Mousepad")
        self.see(Role.PUSH_BUTTON, "Ukončit")
        self.see(Role.LIST, "Zkratky")


del PanelTestCase, TrayTestCase

if __name__ == "__main__":
    unittest.main()
