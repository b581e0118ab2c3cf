# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Everything can be done without a mouse."""

import unittest

from desktop import pointer, windows
from desktop.accessibility import Role
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase

# What Tab reaches from the sidebar on, in reading order.
TAB_ORDER = [
    "All Shortcuts",
    "Add Custom",
    "Settings",
    "Import from Menu",
    "Search",
    "⌘ Command",
    "⌥ Option",
    "⇧ Shift",
    "⌃ Control",
    "Fn Function",
    "Copy",
]


class KeyboardTestCase(KeyvoraTestCase):
    def launch_for_keyboard(self):
        # The pointer must not be where things are.
        pointer.move_to(1279, 799)
        self.launch()
        self.see_focus("All Shortcuts")

    def tab_to(self, name, key="Tab"):
        """Presses Tab until what has that name has the keyboard."""
        for _ in range(2 * len(TAB_ORDER)):
            focused = self.focused_name()
            if focused == name:
                return
            self.keys(key)
            self.wait_for(lambda focused=focused: self.focused_name() not in (None, focused), "the keyboard moves on")
        self.fail(f"{key} does not lead to {name!r}")

    def focused_name(self):
        focused = self.focused
        return focused.name if focused else None


class TabTest(KeyboardTestCase):
    def test_tab_goes_everywhere_in_reading_order_and_starts_over(self):
        self.launch_for_keyboard()
        for name in [*TAB_ORDER[1:], TAB_ORDER[0]]:
            self.keys("Tab")
            self.see_focus(name)

    def test_shift_tab_goes_the_way_back(self):
        self.launch_for_keyboard()
        for name in [*reversed(TAB_ORDER[1:]), TAB_ORDER[0]]:
            self.keys("shift+Tab")
            self.see_focus(name)

    def test_a_filter_that_is_on_adds_its_way_out(self):
        self.launch_for_keyboard()
        self.tab_to("Fn Function")
        self.keys("space")
        self.see_cards("Show Desktop")
        self.keys("Tab")
        self.see_focus("Clear Filters")
        self.keys("space")
        self.card("Copy")
        self.see_focus("⌘ Command")


class SidebarTest(KeyboardTestCase):
    def test_arrow_keys_move_through_the_sections(self):
        self.launch_for_keyboard()
        self.keys("Down")
        self.see_page("Favorites")
        self.see_focus("Favorites")
        self.keys("Down")
        self.see_page("Visual Keyboard")
        self.keys("Up", "Up")
        self.see_page("Library")
        # There is nothing above.
        self.keys("Up")
        self.see_page("Library")

    def test_end_and_home_go_to_the_last_and_the_first_section(self):
        self.launch_for_keyboard()
        self.keys("End")
        self.see_page("Pro Tools")
        self.keys("Home")
        self.see_page("Library")

    def test_space_opens_the_settings_and_escape_closes_them(self):
        self.launch_for_keyboard()
        self.tab_to("Settings")
        self.keys("space")
        self.see(Role.RADIO_BUTTON, "English")
        self.keys("Escape")
        self.see_gone(Role.RADIO_BUTTON)

    def test_enter_opens_the_settings(self):
        self.launch_for_keyboard()
        self.tab_to("Settings")
        self.keys("Return")
        self.see(Role.RADIO_BUTTON, "English")

    def test_the_keyboard_is_back_where_it_was_when_the_settings_close(self):
        self.launch_for_keyboard()
        self.tab_to("Settings")
        self.keys("space")
        self.see(Role.RADIO_BUTTON, "English")
        self.keys("Escape")
        self.see_gone(Role.RADIO_BUTTON)
        self.see_focus("Settings")

    def test_the_language_can_be_chosen(self):
        self.launch_for_keyboard()
        self.tab_to("Settings")
        self.keys("space")
        self.see(Role.RADIO_BUTTON, "English")
        self.tab_to("Čeština")
        self.keys("space")
        self.see_page("Knihovna")


class CardsTest(KeyboardTestCase):
    def go_to_cards(self):
        self.launch_for_keyboard()
        self.tab_to("Copy", key="shift+Tab")

    def test_arrow_keys_move_through_the_cards(self):
        self.go_to_cards()
        for key, title in (("Right", "Paste"), ("Down", "Redo"), ("Left", "Undo"), ("Up", "Copy")):
            self.keys(key)
            self.see_focus(title)

    def test_the_cards_follow_the_keyboard_to_the_end(self):
        self.go_to_cards()
        self.keys("End")
        self.wait_for(lambda: self.focused_name() not in (None, "Copy"), "the keyboard moves on")
        self.wait_for(lambda: self.focused.is_showing, "the last card shows")
        self.assertNotIn("Copy", self.shown_cards)
        self.keys("Home")
        self.see_focus("Copy")

    def test_space_and_enter_make_a_favorite(self):
        self.go_to_cards()
        self.keys("Down")
        self.see_focus("Undo")
        star = self.star("Undo")
        self.keys("space")
        self.wait_for(lambda: star.is_checked, "it is a favorite")
        self.keys("Return")
        self.wait_for(lambda: not star.is_checked, "it is no favorite any more")

    def test_down_leads_from_the_search_to_what_was_found(self):
        self.launch_for_keyboard()
        self.search("folder")
        self.card("New Folder")
        self.keys("Down")
        self.see_focus("New Folder")
        self.keys("ctrl+f")
        self.see_focus("Search")


class WindowTest(KeyboardTestCase):
    def test_control_w_only_hides_the_window(self):
        self.launch_for_keyboard()
        self.keys("Down")
        self.see_page("Favorites")
        self.close()
        self.assertTrue(self.program.is_running)

        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.see_page("Favorites")

    def launch_elsewhere(self):
        """Launches, moves and resizes the window, and returns where it is then."""
        self.launch_for_keyboard()
        window = self.window(self.program)
        windows.resize(window, 1000, 700)
        self.wait_for(lambda: windows.frame_free_geometry(window)[2:] == (1000, 700), "the window has its new size")
        before = windows.frame_free_geometry(window)
        windows.move(window, 40, 30)
        self.wait_for(lambda: windows.frame_free_geometry(window)[:2] != before[:2], "the window has moved")
        return windows.frame_free_geometry(window)

    def see_window_at(self, geometry):
        window = self.window(self.program, WINDOW_TITLE)
        self.wait_for(lambda: windows.frame_free_geometry(window) == geometry, f"the window is at {geometry}")

    def close(self):
        window = self.window(self.program)
        self.keys("ctrl+w")
        self.wait_for(lambda: not windows.is_shown(window), "the window is closed")

    def test_a_closed_window_comes_back_where_it_was(self):
        geometry = self.launch_elsewhere()
        self.close()
        self.assertEqual(0, self.start_again())
        self.see_window_at(geometry)

    def test_the_window_is_where_it_was_after_a_new_start(self):
        geometry = self.launch_elsewhere()
        self.close()
        self.assertEqual(0, self.program.terminate())
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.see_window_at(geometry)

    def maximize(self):
        """As a person does: a double click on the title."""
        window = self.window(self.program)
        content = windows.frame_free_geometry(window)
        pointer.double_click_at(content.x + content.width // 2, content.y - 8)
        self.see_maximized()

    def see_maximized(self):
        window = self.window(self.program, WINDOW_TITLE)
        self.wait_for(lambda: windows.is_maximized(window), "the window is maximized")

    def test_a_maximized_window_stays_maximized(self):
        self.launch_elsewhere()
        self.maximize()
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        window = self.window(self.program)
        self.assertTrue(windows.is_maximized(window))
        self.keys("ctrl+m")
        self.wait_for(lambda: windows.is_minimized(window), "the window is minimized")
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.assertTrue(windows.is_maximized(window))

    def test_a_window_that_was_maximized_is_that_again_after_a_new_start(self):
        geometry = self.launch_elsewhere()
        stored = self.directory / "state" / "keyvora" / "windows.json"
        self.wait_for(lambda: stored.exists() and " 1000 700" in stored.read_text(), "its place is remembered")
        self.maximize()
        self.close()
        self.assertEqual(0, self.program.terminate())
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.see_maximized()
        window = self.window(self.program)
        content = windows.frame_free_geometry(window)
        pointer.double_click_at(content.x + content.width // 2, content.y - 8)
        self.wait_for(lambda: windows.frame_free_geometry(window) == geometry, f"the window is at {geometry}")

    def test_the_window_cannot_be_made_too_small(self):
        self.launch_for_keyboard()
        window = self.window(self.program)
        windows.resize(window, 1100, 760)
        self.wait_for(lambda: windows.frame_free_geometry(window).width == 1100, "the window is larger")
        windows.resize(window, 300, 200)
        self.wait_for(lambda: windows.frame_free_geometry(window).width < 1100, "the window is smaller")
        self.assertEqual((980, 678), windows.frame_free_geometry(window)[2:])

    def test_control_q_ends_the_program(self):
        self.launch_for_keyboard()
        self.keys("ctrl+q")
        self.assertEqual(0, self.program.wait())


if __name__ == "__main__":
    unittest.main()
