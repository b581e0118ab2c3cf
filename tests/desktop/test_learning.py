# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The screens that teach: the visual keyboard, first aid and the lesson of the day."""

import datetime
import unittest

from desktop import pointer
from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase


class VisualKeyboardTest(KeyvoraTestCase):
    def open_keyboard(self):
        self.launch()
        self.click(self.row("Visual Keyboard"))
        self.see_page("Visual Keyboard")

    def see_key(self, name):
        return self.see(Role.PUSH_BUTTON, name)

    def test_a_key_leads_to_its_shortcuts_and_on_to_the_library(self):
        self.open_keyboard()
        self.see_key("T")
        self.switch_on(self.pill("⌘"))
        self.switch_on(self.pill("⇧"))
        self.see_key("E, not available")
        key = self.see_key("T, available")
        self.click(key)
        self.see_key("T, available, selected")
        self.assertTrue(key.is_selected)
        self.see_cards("Reopen Closed Tab")
        self.click(self.see(Role.PUSH_BUTTON, "Open Full Library"))
        self.see_page("Library")
        self.assertTrue(self.row("All Shortcuts").is_selected)

    def test_a_key_without_shortcuts_says_so(self):
        self.open_keyboard()
        self.search("copy")
        self.click(self.see_key("T"))
        self.see(name="No matching shortcut")
        self.see_cards()
        self.keys("ctrl+f", "Escape")
        self.see_gone(name="No matching shortcut")

    def test_works_without_a_mouse(self):
        pointer.move_to(1279, 799)
        self.open_keyboard()
        self.keys("ctrl+f")
        self.keys("Down")
        self.see_focus("⌘ Command")
        self.keys("space")
        for _ in range(4):
            self.keys("Tab")
        self.see_focus("Fn Function")
        self.keys("Tab")
        self.see_focus("Clear Filters")
        self.keys("Tab")
        self.see_focus("Esc, available")
        self.keys("Down", "Right")
        self.see_focus("Q, available")
        self.keys("Return")
        self.see_focus("Q, available, selected")
        self.keys("Tab")
        self.see_focus(self.shown_cards[0])
        self.keys("Tab")
        self.see_focus("Open Full Library")
        self.keys("Return")
        self.see_page("Library")
        self.see_focus(self.shown_cards[0])


class FirstAidTest(KeyvoraTestCase):
    HEADINGS = [
        "What just happened?",
        "App is not responding",
        "I accidentally changed something",
        "I can't find a file or app",
        "I need to capture my screen",
        "I want to get back to work fast",
        "Startup & recovery",
    ]

    def open_first_aid(self):
        self.launch()
        self.click(self.row("First Aid"))
        self.see_page("First Aid")
        self.see(Role.HEADING, self.HEADINGS[0])

    def test_has_a_way_out_of_each_situation(self):
        self.open_first_aid()
        # What has yet to be scrolled to is there, too.
        headings = [node.name for node in self.screen.find_all(Role.HEADING, showing=False)]
        self.assertEqual(self.HEADINGS, [name for name in headings if name in self.HEADINGS])
        self.card("Force Quit")
        self.switch_on(self.star("Force Quit"))
        self.wait_for(lambda: "force-quit" in self.defaults.read()["favorites"], "the star is stored")

    def test_its_end_can_be_reached_by_keys(self):
        self.open_first_aid()
        self.assertIsNone(self.screen.find(Role.HEADING, "Startup & recovery"))
        self.keys("ctrl+f", "Down")
        self.see_focus("Force Quit")
        self.keys("Next", "Next", "Next")
        self.see(Role.HEADING, "Startup & recovery")


class DailyLessonTest(KeyvoraTestCase):
    def open_lesson(self):
        self.click(self.row("Shortcut of the Day"))
        self.see_page("Today's Lesson")

    def test_a_lesson_learned_is_kept(self):
        self.launch()
        self.open_lesson()
        self.see(Role.HEADING, "TODAY'S TRIO  •  0-day streak")
        self.wait_for(lambda: len(self.shown_cards) == 3, "there are three cards")
        self.click(self.see(Role.PUSH_BUTTON, "I've got this trio"))
        self.see(name="Done for today ✓")
        self.see_gone(Role.PUSH_BUTTON, "I've got this trio")
        self.wait_for_stored(learningStreak=1)
        datetime.date.fromisoformat(self.defaults.read()["lastLearnedDay"])
        self.program.kill()

        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.open_lesson()
        self.see(Role.HEADING, "TODAY'S TRIO  •  1-day streak")
        self.see(name="Done for today ✓")

    def test_days_without_a_lesson_take_nothing_away(self):
        self.defaults.write({"hasSeenOnboarding": True, "learningStreak": 5, "lastLearnedDay": "2020-01-01"})
        self.launch()
        self.open_lesson()
        self.see(Role.HEADING, "TODAY'S TRIO  •  5-day streak")
        self.click(self.see(Role.PUSH_BUTTON, "I've got this trio"))
        self.see(Role.HEADING, "TODAY'S TRIO  •  6-day streak")
        self.wait_for_stored(learningStreak=6)


if __name__ == "__main__":
    unittest.main()
