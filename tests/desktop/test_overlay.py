# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The overlay shows while Control and Alt are held, in every application."""

import subprocess
import time
import unittest

import tray_hosts

from desktop import keyboard, pointer, windows
from desktop.accessibility import Role, State
from desktop.appearances import Appearances
from desktop.applications import Applications
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase

SCREEN_WIDTH, SCREEN_HEIGHT = 1280, 800
WIDTH = 380
MARGIN = 22
HOLD_SECONDS = 0.35


def shortcut(app, title, *keys):
    return {"id": f"custom-{app}-{title}", "title": title, "keys": list(keys), "category": "Text", "apps": [app]}


class OverlayTestCase(Applications, KeyvoraTestCase):
    """The program rests, and an editor has the keyboard."""

    def setUp(self):
        super().setUp()
        self.mousepad = self.start_mousepad()
        own = [shortcut("Mousepad", "Sort the Lines", "⌃", "L"), shortcut("Galculator", "Take the Root", "⌃", "R")]
        own = [{**each, "detail": "Custom keyboard shortcut."} for each in own]
        self.defaults.write({"hasSeenOnboarding": True, "hasLaunchedBefore": True, "customShortcuts": own})
        self.launch_resting()
        self.appearances = Appearances(self)
        self.activate(self.mousepad)

    def overlay(self):
        """What shows of the overlay, or nothing."""
        return self.screen.find(Role.PANEL, "Shortcut overlay")

    def see_overlay(self):
        return self.wait_for(self.overlay, "the overlay shows")

    def see_no_overlay(self):
        self.wait_for(lambda: not self.overlay(), "the overlay is gone")

    def watch_for_overlay(self):
        """Fails when it shows within a second, however briefly, or did before."""
        self.watch(lambda: self.appearances.of_process(self.program), "the overlay shows")

    def see_geometry(self, x, y):
        """Waits until the overlay's window has its place there."""
        window = self.appearances.of_process(self.program)[-1]
        self.wait_for(lambda: windows.frame_free_geometry(window)[:3] == (x, y, WIDTH), f"it lies at {x},{y}")

    def see_on_top(self):
        """Checks that nothing covers it."""
        overlay = self.see_overlay()
        self.assertEqual(self.program.pid, windows.pid_of(windows.at(*overlay.centre)))

    def rows(self):
        return [node.name for node in self.see_overlay().find_all(Role.LIST_ITEM)]


class HoldTest(OverlayTestCase):
    def test_a_hold_shows_it_in_the_corner_and_leaves_the_keyboard_where_it_is(self):
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            self.see(Role.HEADING, "Mousepad")
            self.see(name="Best shortcuts right now")
            self.see_geometry(SCREEN_WIDTH - MARGIN - WIDTH, MARGIN)
            self.assertEqual(self.mousepad.pid, windows.active_pid())
        self.see_no_overlay()
        text = self.tree(self.mousepad).find(Role.TEXT)
        self.press(self.mousepad, "a")
        self.wait_for(lambda: text.text == "a", "what is typed arrives where it should")

    def test_a_short_hold_shows_nothing(self):
        while self.hold_seconds("0.2") >= HOLD_SECONDS:
            # The machine was too busy to let go in time, so that the overlay is right to show.
            self.appearances = Appearances(self)
        self.watch_for_overlay()

    @staticmethod
    def hold_seconds(seconds):
        """Holds the keys for some time; returns the time that it took at most."""
        began = time.monotonic()
        down, up = ("keydown", "Control_L", "keydown", "Alt_L"), ("keyup", "Alt_L", "keyup", "Control_L")
        subprocess.run(["xdotool", *down, "sleep", seconds, *up], check=True)
        return time.monotonic() - began

    def test_a_second_hold_shows_it_again(self):
        for _ in range(3):
            with keyboard.held("Control_L", "Alt_L"):
                self.see_overlay()
            self.see_no_overlay()
        self.assertEqual(3, len(self.appearances.of_process(self.program)))

    def test_right_hand_keys_count_as_well(self):
        with keyboard.held("Control_R", "Alt_L"):
            self.see_overlay()

    def test_shift_hides_it(self):
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            with keyboard.held("Shift_L"):
                self.see_no_overlay()

    def test_nothing_shows_with_shift_from_the_start(self):
        with keyboard.held("Shift_L", "Control_L", "Alt_L"):
            self.watch_for_overlay()

    def test_nothing_shows_with_one_of_the_keys(self):
        for key in ("Control_L", "Alt_L"):
            with keyboard.held(key):
                self.watch_for_overlay()

    def test_num_lock_does_not_matter(self):
        with keyboard.lock("Num_Lock"), keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()

    def test_nothing_shows_with_caps_lock(self):
        with keyboard.lock("Caps_Lock"), keyboard.held("Control_L", "Alt_L"):
            self.watch_for_overlay()

    def test_nothing_shows_while_the_program_itself_has_the_keyboard(self):
        self.assertEqual(0, self.start_again())
        # The window manager knows a moment earlier than the program itself.
        self.wait_for(lambda: self.see(Role.FRAME, WINDOW_TITLE).has(State.ACTIVE), "the program has the keyboard")
        with keyboard.held("Control_L", "Alt_L"):
            self.watch_for_overlay()


class PlaceTest(OverlayTestCase):
    """Where it shows: over everything, everywhere, beside the desktop's panels."""

    def test_shows_while_a_menu_of_gtk_is_open(self):
        menu = self.open_menu(self.mousepad, "File")
        self.row(menu, "Open...")
        with keyboard.held("Control_L", "Alt_L"):
            self.see_on_top()

    def test_shows_while_a_menu_of_qt_is_open(self):
        menu = self.open_menu(self.start_featherpad(), "File")
        self.row(menu, "Open")
        with keyboard.held("Control_L", "Alt_L"):
            self.see_on_top()

    def test_shows_above_a_full_screen_window(self):
        self.press(self.mousepad, "F11")
        window = self.window(self.mousepad)
        screen = (0, 0, SCREEN_WIDTH, SCREEN_HEIGHT)
        self.wait_for(lambda: windows.frame_free_geometry(window) == screen, "the window fills the screen")
        with keyboard.held("Control_L", "Alt_L"):
            self.see_on_top()
        self.see_no_overlay()
        self.assertEqual(screen, windows.frame_free_geometry(window))

    def test_shows_on_another_workspace(self):
        windows.set_workspaces(2)
        self.show_workspace(1)
        self.addCleanup(self.show_workspace, 0)
        with keyboard.held("Control_L", "Alt_L"):
            self.see_on_top()

    def test_follows_to_another_workspace(self):
        windows.set_workspaces(2)
        self.addCleanup(self.show_workspace, 0)
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            self.show_workspace(1)
            self.see_on_top()

    def show_workspace(self, number):
        windows.show_workspace(number)
        self.wait_for(lambda: windows.workspace() == number, f"workspace {number} shows")

    def test_leaves_room_for_a_panel_at_the_top(self):
        panel = tray_hosts.start_tint2()
        self.addCleanup(panel.wait)
        self.addCleanup(panel.kill)
        area = self.wait_for(lambda: windows.work_area().y and windows.work_area(), "the panel has its place")
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            self.see_geometry(SCREEN_WIDTH - MARGIN - WIDTH, area.y + MARGIN)

    def test_moves_when_a_panel_comes_while_it_shows(self):
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            panel = tray_hosts.start_tint2()
            self.addCleanup(panel.wait)
            self.addCleanup(panel.kill)
            area = self.wait_for(lambda: windows.work_area().y and windows.work_area(), "the panel has its place")
            self.see_geometry(SCREEN_WIDTH - MARGIN - WIDTH, area.y + MARGIN)


class ContentTest(OverlayTestCase):
    def test_follows_the_application_in_front(self):
        self.activate(self.start_galculator())
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            self.see(Role.HEADING, "Galculator")
            self.assertEqual(["Take the Root"], self.rows())
            windows.activate(self.window(self.mousepad))
            self.see(Role.HEADING, "Mousepad")
            self.wait_for(lambda: self.rows() == ["Sort the Lines"], "the rows have followed")

    def test_shows_the_first_of_all_for_an_unknown_application(self):
        self.activate(self.start_featherpad())
        with keyboard.held("Control_L", "Alt_L"):
            self.see_overlay()
            self.see(Role.HEADING, "FeatherPad")
            self.assertEqual(["Copy", "Paste", "Undo", "Redo"], self.rows())


class ActionTest(OverlayTestCase):
    """Opened by an action, which desktops may bind to whatever they like."""

    def setUp(self):
        super().setUp()
        self.perform_action("overlay")
        self.see_overlay()

    def test_leaves_the_keyboard_where_it_is(self):
        self.see_geometry(SCREEN_WIDTH - MARGIN - WIDTH, MARGIN)
        self.assertEqual(self.mousepad.pid, windows.active_pid())

    def test_stays_when_modifiers_come_and_go(self):
        [window] = self.appearances.of_process(self.program)
        with keyboard.held("Control_L", "Alt_L"):
            self.watch(lambda: not windows.is_shown(window), "the overlay is gone")
        self.watch(lambda: not windows.is_shown(window), "the overlay is gone")

    def test_goes_with_the_same_action(self):
        self.perform_action("overlay")
        self.see_no_overlay()

    def test_its_close_button_closes_it(self):
        pointer.click(self.see(Role.PUSH_BUTTON, "Close"))
        self.see_no_overlay()
        self.assertEqual(self.mousepad.pid, windows.active_pid())

    def test_its_large_button_opens_the_library(self):
        pointer.click(self.see(Role.PUSH_BUTTON, "Open Full Library"))
        self.wait_until_active(self.program)
        self.assertEqual(WINDOW_TITLE, windows.title(windows.active()))
        self.see_no_overlay()


class CzechTest(OverlayTestCase):
    LANG = "cs_CZ.UTF-8"

    def test_speaks_czech(self):
        with keyboard.held("Control_L", "Alt_L"):
            self.see(name="Nejlepší zkratky právě teď")
            self.see(Role.PUSH_BUTTON, "Otevřít celou knihovnu")


del OverlayTestCase

if __name__ == "__main__":
    unittest.main()
