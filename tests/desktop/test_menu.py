# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The menu bar of the window."""

import re
import unittest

from desktop import windows
from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase

ITEM_ROLES = (Role.MENU_ITEM, Role.MENU)

ENGLISH_MENUS = {
    "Keyvora": ["About Keyvora", "Quit Keyvora"],
    "Edit": ["Cut", "Copy", "Paste", "Select All"],
    "Window": ["Close", "Minimize"],
}
CZECH_MENUS = {
    "Keyvora": ["O aplikaci Keyvora", "Ukončit Keyvora"],
    "Úpravy": ["Vyjmout", "Kopírovat", "Vložit", "Vybrat vše"],
    "Okno": ["Zavřít", "Minimalizovat"],
}


class MenuTestCase(KeyvoraTestCase):
    def title(self, name):
        """A menu's place in the menu bar."""
        bar = self.see(Role.MENU_BAR)
        return self.wait_for(lambda: bar.find(ITEM_ROLES, name), f"the menu bar has {name!r}")

    def titles(self):
        return [node.name for node in self.see(Role.MENU_BAR).find_all(ITEM_ROLES)]

    def items(self):
        """What the open menu offers, from top to bottom."""
        titles = self.titles()
        items = [node for node in self.screen.find_all(ITEM_ROLES) if node.name not in titles]
        return [node.name for node in sorted(items, key=lambda node: node.extents.y if node.extents else 0)]

    def open(self, name):
        self.click(self.title(name))
        self.wait_for(self.items, f"the menu {name!r} is open")

    def choose(self, menu, item):
        self.open(menu)
        self.click(self.see(ITEM_ROLES, item))

    def check_menus(self, menus):
        self.assertEqual(list(menus), self.titles())
        for name, items in menus.items():
            with self.subTest(name):
                self.open(name)
                self.wait_for(lambda items=items: self.items() == items, f"the menu {name!r} has {items}")
                self.keys("Escape")
                self.wait_for(lambda: not self.items(), "the menu is closed")


class ItemsTest(MenuTestCase):
    def test_has_its_commands(self):
        self.launch()
        self.check_menus(ENGLISH_MENUS)

    def test_has_its_commands_in_czech(self):
        self.defaults.write({"appLanguage": "cs", "hasSeenOnboarding": True})
        self.launch()
        self.check_menus(CZECH_MENUS)

    def test_speaks_another_language_when_the_window_is_shown_again(self):
        self.launch()
        self.click(self.row("Settings"))
        self.click(self.see(Role.RADIO_BUTTON, "Čeština"))
        self.see_page("Knihovna")
        self.keys("Escape")
        self.see_gone(Role.RADIO_BUTTON)
        self.assertEqual(list(ENGLISH_MENUS), self.titles())
        self.assertEqual(0, self.start_again())
        self.wait_for(lambda: self.titles() == list(CZECH_MENUS), "the menu bar is in Czech")

    def test_is_reached_by_the_keyboard(self):
        self.launch()
        self.keys("F10")
        self.wait_for(lambda: self.items() == ENGLISH_MENUS["Keyvora"], "the first menu is open")
        self.keys("Right")
        self.wait_for(lambda: self.items() == ENGLISH_MENUS["Edit"], "the second menu is open")
        self.keys("Left", "Left")
        self.wait_for(lambda: self.items() == ENGLISH_MENUS["Window"], "the last menu is open")
        self.keys("Escape")
        self.wait_for(lambda: not self.items(), "the menu is closed")


class CommandsTest(MenuTestCase):
    def test_edits_the_text_that_is_searched(self):
        self.launch()
        self.search("copy")
        field = self.search_field
        self.choose("Edit", "Select All")
        self.choose("Edit", "Cut")
        self.wait_for(lambda: field.text == "", "the text is cut")
        for _ in range(2):
            self.choose("Edit", "Paste")
        self.wait_for(lambda: field.text == "copycopy", f"the text is pasted twice: {field.text!r}")

    def test_copies_text_for_other_applications(self):
        self.launch()
        self.search("copy")
        self.choose("Edit", "Select All")
        self.choose("Edit", "Copy")
        mousepad = self.start("mousepad", "--disable-server")
        text = self.wait_for(lambda: self.tree(mousepad).find(Role.TEXT), "the text shows")
        self.wait_for(lambda: text.is_focused, "the text has the keyboard")
        self.press(mousepad, "ctrl+v")
        self.wait_for(lambda: text.text == "copy", "the text has been handed over")

    def test_the_keyboard_is_back_where_it_was_when_a_menu_closes(self):
        self.launch()
        self.search("copy")
        self.keys("F10")
        self.wait_for(self.items, "a menu is open")
        self.keys("Escape")
        self.wait_for(lambda: not self.items(), "the menu is closed")
        self.see_focus("Search")

    def test_close_hides_the_window(self):
        self.launch()
        window = self.window(self.program)
        self.choose("Window", "Close")
        self.wait_for(lambda: not windows.is_shown(window), "the window is closed")
        self.assertTrue(self.program.is_running)

    def test_minimize_minimizes_the_window(self):
        self.launch()
        window = self.window(self.program)
        self.choose("Window", "Minimize")
        self.wait_for(lambda: windows.is_minimized(window), "the window is minimized")

    def test_about_tells_the_name_and_the_version(self):
        self.launch()
        main_window = self.window(self.program)
        self.choose("Keyvora", "About Keyvora")

        def about_window():
            return [window for window in windows.of_process(self.program.pid) if window != main_window]

        self.wait_for(about_window, "there is a window about the program")
        self.see(Role.LABEL, re.compile(r"^Version \d+\.\d+"))
        self.wait_for(lambda: windows.active() in about_window(), "it has the keyboard")
        self.keys("ctrl+q")
        self.assertEqual(0, self.program.wait())

    def test_the_keyboard_alone_chooses_a_command(self):
        self.launch()
        window = self.window(self.program)
        self.keys("F10")
        self.wait_for(self.items, "a menu is open")
        self.keys("Left")
        self.wait_for(lambda: self.items() == ENGLISH_MENUS["Window"], "the last menu is open")
        self.keys("Return")
        self.wait_for(lambda: not windows.is_shown(window), "the window is closed")

    def test_quit_ends_the_program(self):
        self.launch()
        self.choose("Keyvora", "Quit Keyvora")
        self.assertEqual(0, self.program.wait())


if __name__ == "__main__":
    unittest.main()
