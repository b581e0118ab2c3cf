# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""What a person types stays with the application that they type it into."""

import re
import unittest

from desktop import keyboard, memory, pointer
from desktop.accessibility import Role
from desktop.applications import Applications
from desktop.keyvora import KeyvoraTestCase

SECRET = "correcthorsebatterystaple"


class PrivacyTest(Applications, KeyvoraTestCase):
    def files(self):
        """Everything that the program has stored."""
        places = [self.directory / name for name in ("config", "data", "state")]
        return [path for place in places for path in place.rglob("*") if path.is_file()]

    def test_typed_text_reaches_neither_memory_nor_files(self):
        mousepad = self.start_mousepad()
        custom = {"id": "custom-1", "title": "Transpose", "keys": ["⌃", "T"], "category": "Text", "apps": []}
        self.defaults.write(
            {
                "hasSeenOnboarding": True,
                "hasLaunchedBefore": True,
                "learningMode": True,
                "customShortcuts": [{**custom, "detail": "Custom keyboard shortcut."}],
            }
        )
        self.launch_resting()
        self.type_into(mousepad)
        self.see_overlay_over(mousepad)
        self.type_into(mousepad)
        self.choose_transpose(mousepad)
        self.type_into(mousepad)
        self.import_from(mousepad)
        self.assertTrue(memory.holds(mousepad.pid, SECRET))
        self.assertFalse(memory.holds(self.program.pid, SECRET))
        self.assertIn(self.defaults.path, self.files())
        for path in self.files():
            self.assertNotIn(SECRET.encode(), path.read_bytes(), path)

    def type_into(self, process):
        text = self.wait_for(lambda: self.tree(process).find(Role.TEXT), "the text shows")
        before = text.text.count(SECRET)
        self.activate(process)
        keyboard.press("ctrl+End", "Return")
        keyboard.type_text(SECRET)
        self.wait_for(lambda: text.text.count(SECRET) > before, "the text is where it was typed")

    def see_overlay_over(self, process):
        self.activate(process)
        with keyboard.held("Control_L", "Alt_L"):
            self.see(Role.PANEL, "Shortcut overlay")
        self.see_gone(Role.PANEL, "Shortcut overlay")

    def choose_transpose(self, process):
        menu = self.open_menu(process, "Edit", "Convert")
        with pointer.held_at(*self.row(menu, "Transpose").centre):
            self.wait_for_stored(usageCounts={"custom-1": 1})
        self.see(Role.ALERT, "Transpose: Control T")

    def import_from(self, process):
        self.activate(process)
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.click(self.see(Role.PUSH_BUTTON, "Import from Menu"))
        self.click(self.see(Role.MENU_ITEM, "Import from Active App “Mousepad”"))
        self.see(Role.ALERT, re.compile("^Imported "))

    def test_the_search_of_memory_finds_what_is_there(self):
        self.launch()
        self.assertFalse(memory.holds(self.program.pid, SECRET))
        self.search(SECRET)
        self.assertTrue(memory.holds(self.program.pid, SECRET))


if __name__ == "__main__":
    unittest.main()
