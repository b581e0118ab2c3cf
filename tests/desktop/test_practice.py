# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Practising shortcuts: rounds of tasks, answered with the keys that are asked for."""

import pathlib
import re
import unittest

from desktop import keyboard, windows
from desktop.accessibility import Role
from desktop.applications import Applications
from desktop.keyvora import KeyvoraTestCase

CATALOG = pathlib.Path(__file__).resolve().parent.parent / "data" / "catalog" / "catalog.tsv"

FIELD = "Click here and press the shortcut"
CAPTURING = "Press the shortcut…"
CORRECT = "Correct"
WRONG = "Try to remember the correct combination"

# No shortcut of the catalog.
WRONG_KEY = "F9"

# Keys by the names that the X server knows them by.
KEYSYMS = {
    "⌃": "ctrl",
    "⌥": "alt",
    "⇧": "shift",
    "⌘": "super",
    "←": "Left",
    "↑": "Up",
    "↓": "Down",
    "Space": "space",
    "Esc": "Escape",
    "Delete": "BackSpace",
    ",": "comma",
    ".": "period",
    "/": "slash",
    "`": "grave",
    "+": "plus",
    "−": "minus",
}


def catalog():
    """The ids and keys of the catalog's shortcuts by their English titles."""
    rows = [line.split("\t") for line in CATALOG.read_text(encoding="utf-8").splitlines()]
    return {row[5]: (row[0], row[1].split(" ")) for row in rows}


def combination(keys):
    return "+".join(KEYSYMS.get(key, key if len(key) > 1 else key.lower()) for key in keys)


class PracticeTestCase(KeyvoraTestCase, Applications):
    def setUp(self):
        super().setUp()
        self.launch()
        self.open_practice()

    def open_practice(self):
        self.click(self.row("Practice"))
        self.see_task(1)

    @property
    def task(self):
        """The title of the shortcut that is asked for."""
        titles = catalog()
        return next((node.name for node in self.screen.find_all(Role.HEADING) if node.name in titles), None)

    def see_task(self, number):
        self.see(Role.HEADING, f"Task {number}")

    def see_points(self, points):
        self.see(name=f"{points} points")

    def begin_capture(self):
        self.click(self.see(name=FIELD))
        self.see(name=CAPTURING)

    def answer(self, correctly):
        """Answers the task and returns the id of its shortcut."""
        shortcut, keys = catalog()[self.task]
        keyboard.press(combination(keys) if correctly else WRONG_KEY)
        self.see(name=CORRECT if correctly else WRONG)
        return shortcut


class RoundTest(PracticeTestCase):
    def test_a_round_with_the_keyboard(self):
        self.begin_capture()
        expected, points = {}, 0
        for task in range(1, 9):
            self.see_task(task)
            correctly = task not in (2, 5)
            points += correctly
            shortcut = self.answer(correctly)
            expected[shortcut] = {"seen": 1, "wrong": 0 if correctly else 1}
            self.see_points(points)
            self.wait_for_stored(practiceStats=expected)
            if task < 8:
                keyboard.press("Return")
        self.see(name="Round complete, 6 of 8 correct")
        keyboard.press("Return")
        self.see_task(1)
        self.see_points(0)
        self.see(name=CAPTURING)

    def test_a_second_press_changes_nothing(self):
        self.begin_capture()
        shortcut = self.answer(correctly=False)
        keyboard.press("ctrl+shift+F9")
        keyboard.press("Return")
        self.see_task(2)
        self.assertEqual({shortcut: {"seen": 1, "wrong": 1}}, self.defaults.read()["practiceStats"])

    def test_a_round_with_the_mouse(self):
        self.begin_capture()
        self.answer(correctly=True)
        self.click(self.see(name="Next Task"))
        self.see_task(2)
        self.see(name=CAPTURING)
        self.click(self.see(name="Start Over"))
        self.see_task(1)
        self.see_points(0)

    def test_the_round_survives_a_look_elsewhere(self):
        self.begin_capture()
        self.answer(correctly=True)
        keyboard.press("Return")
        self.see_task(2)
        asked = self.task
        self.click(self.row("All Shortcuts"))
        self.see_page("Library")
        self.click(self.row("Practice"))
        self.see_task(2)
        self.see_points(1)
        self.assertEqual(asked, self.task)


class StatisticsTest(KeyvoraTestCase):
    """What was wrong again and again is asked first."""

    HARD = ("copy", "paste", "undo", "redo", "save", "select-all", "find", "bold")

    see_task = PracticeTestCase.see_task
    begin_capture = PracticeTestCase.begin_capture
    answer = PracticeTestCase.answer
    task = PracticeTestCase.task

    def test_the_next_round_follows_what_was_stored(self):
        hard = {shortcut: {"seen": 1, "wrong": 10**15} for shortcut in self.HARD}
        self.defaults.write({"hasSeenOnboarding": True, "practiceStats": hard})
        self.launch()
        self.click(self.row("Practice"))
        self.see_task(1)
        self.begin_capture()
        asked = []
        for task in range(1, 9):
            self.see_task(task)
            asked.append(self.answer(correctly=True))
            keyboard.press("Return")
        self.assertEqual(sorted(self.HARD), sorted(asked))
        expected = {shortcut: {"seen": 2, "wrong": 10**15} for shortcut in self.HARD}
        self.wait_for_stored(practiceStats=expected)


class LettingGoTest(PracticeTestCase):
    def test_escape_twice_gives_the_keyboard_back(self):
        self.begin_capture()
        keyboard.press("Escape", "Escape")
        self.see_focus("Next Task")
        self.see(name=FIELD)
        self.assertNotIn("practiceStats", self.defaults.read())
        keyboard.press("space")
        self.see_task(2)

    def test_a_click_elsewhere_gives_the_keyboard_back(self):
        self.begin_capture()
        self.click(self.see(name="Task 1"))
        self.see(name=FIELD)

    def test_commands_of_the_program_wait(self):
        self.begin_capture()
        keyboard.press("ctrl+f")
        self.see(name=re.compile(f"^(?:{CORRECT}|{WRONG})$"))
        keyboard.press("Return")
        self.see_task(2)
        self.see(name=CAPTURING)

    def test_another_window_takes_the_keyboard(self):
        mousepad = self.start_mousepad()
        windows.activate(self.window(self.program, "Keyvora"))
        self.wait_until_active(self.program)
        self.begin_capture()
        windows.activate(next(iter(windows.of_process(mousepad.pid))))
        self.wait_until_active(mousepad)
        self.see(name=FIELD)
        self.assertNotIn("practiceStats", self.defaults.read())


del PracticeTestCase

if __name__ == "__main__":
    unittest.main()
