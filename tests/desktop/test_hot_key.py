# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Control+Alt+Space opens the library from anywhere."""

import contextlib
import unittest

from desktop import keyboard, windows
from desktop.accessibility import Role
from desktop.appearances import Appearances
from desktop.applications import Applications
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase

HOT_KEY = "ctrl+alt+space"


class HotKeyTestCase(Applications, KeyvoraTestCase):
    def setUp(self):
        super().setUp()
        self.defaults.write({"hasSeenOnboarding": True, "hasLaunchedBefore": True})

    def open_from(self, process):
        """Opens the window while another program has the keyboard."""
        self.activate(process)
        self.press(process, HOT_KEY)
        self.wait_until_active(self.program)
        self.assertEqual(WINDOW_TITLE, windows.title(windows.active()))


class HotKeyTest(HotKeyTestCase):
    def setUp(self):
        super().setUp()
        self.mousepad = self.start_mousepad()
        self.launch_resting()

    def test_opens_the_window_from_another_application(self):
        self.open_from(self.mousepad)

    def test_works_whatever_the_locks_are(self):
        for locks in (("Num_Lock",), ("Caps_Lock",), ("Num_Lock", "Caps_Lock")):
            with self.subTest(locks=locks), contextlib.ExitStack() as stack:
                for lock in locks:
                    stack.enter_context(keyboard.lock(lock))
                self.open_from(self.mousepad)

    def test_brings_back_a_closed_window(self):
        for _ in range(3):
            self.open_from(self.mousepad)
            self.keys("ctrl+w")
            self.wait_until_active(self.mousepad)

    def test_brings_back_a_minimized_window(self):
        self.open_from(self.mousepad)
        window = windows.active()
        self.keys("ctrl+m")
        self.wait_for(lambda: windows.is_minimized(window), "the window is minimized")
        self.open_from(self.mousepad)
        self.assertEqual(window, windows.active())

    def test_the_application_gets_no_space(self):
        text = self.wait_for(lambda: self.tree(self.mousepad).find(Role.TEXT), "the text shows")
        self.activate(self.mousepad)
        self.press(self.mousepad, "a")
        self.wait_for(lambda: text.text == "a", "a letter has arrived")
        self.open_from(self.mousepad)
        self.activate(self.mousepad)
        self.press(self.mousepad, "b")
        self.wait_for(lambda: text.text == "ab", "the next letter has arrived, and nothing between them")

    def test_no_overlay_shows(self):
        appearances = Appearances(self)
        self.open_from(self.mousepad)
        self.watch(lambda: appearances.of_process(self.program), "the overlay shows")

    def test_no_overlay_shows_while_the_keys_stay_down(self):
        appearances = Appearances(self)
        self.activate(self.mousepad)
        with keyboard.held("Control_L", "Alt_L", "space"):
            self.wait_until_active(self.program)
            self.watch(lambda: appearances.of_process(self.program), "the overlay shows")


class TakenKeyTest(HotKeyTestCase):
    """Another program has the key, one that answers it with a file."""

    def setUp(self):
        super().setUp()
        self.answer = self.directory / "answer"
        configuration = self.directory / "sxhkdrc"
        configuration.write_text(f"ctrl + alt + space\n    touch {self.answer}\n", encoding="utf-8")
        self.owner = self.start("sxhkd", "-c", str(configuration))
        self.wait_for(self.owner_answers, "the other program has the key")

    def owner_answers(self):
        keyboard.press(HOT_KEY)
        return self.answer.exists()

    def test_the_key_stays_with_its_owner(self):
        self.launch_resting()
        self.answer.unlink()
        self.wait_for(self.owner_answers, "the other program answers")
        self.watch(lambda: windows.of_process(self.program.pid), "the window opens")

    def test_all_else_works_and_nothing_is_said(self):
        mousepad = self.start_mousepad()
        self.launch_resting()
        self.activate(mousepad)
        with keyboard.held("Control_L", "Alt_L"):
            self.see(Role.PANEL, "Shortcut overlay")
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.assertEqual("", self.program.output)


del HotKeyTestCase

if __name__ == "__main__":
    unittest.main()
