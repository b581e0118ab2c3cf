# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Everything is there in English and in Czech, and the user chooses."""

import re
import unittest

from desktop.accessibility import Role
from desktop.keyvora import CZECH, ENGLISH, ROW_ROLES, SIDEBAR, KeyvoraTestCase


class LanguageTestCase(KeyvoraTestCase):
    def see_sidebar(self, language):
        """Waits until all rows have their names in that language, from top to bottom."""
        names = [row[language] for row in SIDEBAR]

        def rows():
            found = {node.name: node.extents for node in self.screen.find_all(ROW_ROLES) if node.name in names}
            return found if len(found) == len(names) and all(found.values()) else None

        found = self.wait_for(rows, f"the sidebar has {names}")
        self.assertEqual(names, sorted(found, key=lambda name: found[name].y))

    def choose(self, language):
        """Chooses a language in the settings, from whichever language."""
        self.click(self.see(ROW_ROLES, re.compile("^(Settings|Nastavení)$")))
        choice = self.see(Role.RADIO_BUTTON, language)
        self.click(choice)
        self.wait_for(lambda: choice.is_checked, f"{language} is chosen")


class EnvironmentTest(LanguageTestCase):
    def test_is_english_where_nothing_is_said(self):
        self.launch()
        self.see_sidebar(ENGLISH)

    def test_is_czech_on_a_czech_desktop(self):
        self.launch(LANG="cs_CZ.UTF-8")
        self.see_sidebar(CZECH)
        self.assertNotIn("appLanguage", self.defaults.read())

    def test_is_english_on_a_german_desktop(self):
        self.launch(LANG="de_DE.UTF-8")
        self.see_sidebar(ENGLISH)

    def test_what_was_chosen_holds_against_the_desktop(self):
        self.defaults.write({"appLanguage": "cs", "hasSeenOnboarding": True})
        self.launch()
        self.see_sidebar(CZECH)
        self.see_page("Knihovna")


class ChoiceTest(LanguageTestCase):
    def test_relabels_everything_at_once_and_is_stored(self):
        self.launch()
        self.see_sidebar(ENGLISH)
        self.choose("Čeština")
        self.see_sidebar(CZECH)
        self.see_page("Knihovna")
        self.see(Role.PUSH_BUTTON, "Import z menu")
        self.wait_for_stored(appLanguage="cs")
        self.assertFalse(self.see(Role.RADIO_BUTTON, "English").is_checked)

    def test_the_settings_say_which_language_it_is(self):
        self.launch()
        self.click(self.row("Settings"))
        self.assertTrue(self.see(Role.RADIO_BUTTON, "English").is_checked)
        self.assertFalse(self.see(Role.RADIO_BUTTON, "Čeština").is_checked)
        self.keys("Escape")
        self.see_gone(Role.RADIO_BUTTON)

    def test_there_and_back_again(self):
        self.launch()
        self.choose("Čeština")
        self.see_sidebar(CZECH)
        self.keys("Escape")
        self.see_gone(Role.RADIO_BUTTON)
        self.choose("English")
        self.see_sidebar(ENGLISH)
        self.wait_for_stored(appLanguage="en")

    def test_the_choice_outlives_the_program(self):
        self.launch()
        self.choose("Čeština")
        self.wait_for_stored(appLanguage="cs")
        self.program.kill()
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.see_sidebar(CZECH)

    def test_the_cards_change_and_favorites_stay(self):
        self.launch()
        self.switch_on(self.star("Undo"))
        self.choose("Čeština")
        self.keys("Escape")
        self.see_gone(Role.RADIO_BUTTON)
        self.assertTrue(self.star("Vrátit zpět").is_checked)


if __name__ == "__main__":
    unittest.main()
