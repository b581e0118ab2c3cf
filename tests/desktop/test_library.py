# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Finding shortcuts in the library and keeping favourites."""

import unittest

from desktop import keyboard
from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase

FIRST_FAVORITES = ["copy", "paste", "shot-area", "spotlight"]


class SectionTest(KeyvoraTestCase):
    def test_starts_with_all_shortcuts(self):
        self.launch()
        self.see_page("Library")
        self.assertTrue(self.row("All Shortcuts").is_selected)
        self.wait_for(
            lambda: self.shown_cards[:6] == ["Copy", "Paste", "Undo", "Redo", "Save", "Select All"],
            "the cards are in the order of the catalog",
        )

    def test_a_click_selects_a_section(self):
        self.launch()
        row = self.row("Screenshots")
        self.click(row)
        self.see_page("Screenshots")
        self.assertTrue(row.is_selected)
        self.see_cards(
            "Capture Whole Screen", "Capture Selection", "Screenshot & Recording", "Selection to Clipboard"
        )

    def test_each_section_has_its_title(self):
        titles = {
            "Favorites": "Favorites",
            "Visual Keyboard": "Visual Keyboard",
            "Cheat Sheet": "Cheat Sheet Shortcuts",
            "First Aid": "First Aid",
            "Shortcut of the Day": "Today's Lesson",
            "Practice": "Practice",
            "Basics": "Basics",
            "All Shortcuts": "Library",
        }
        self.launch()
        for row, title in titles.items():
            with self.subTest(row):
                self.click(self.row(row))
                self.see_page(title)

    def test_favorites_hold_a_few_at_first(self):
        self.launch()
        self.click(self.row("Favorites"))
        self.see_page("Favorites")
        self.see_cards("Copy", "Paste", "Spotlight", "Capture Selection")


class SearchTest(KeyvoraTestCase):
    def test_finds_titles_and_details(self):
        self.launch()
        self.search("copy")
        # The second one "makes a copy".
        self.see_cards("Copy", "Duplicate")

    def test_does_not_mind_case_and_surrounding_spaces(self):
        self.launch()
        self.search("  COPY ")
        self.see_cards("Copy", "Duplicate")

    def test_modifier_keys_narrow_what_was_found(self):
        self.launch()
        self.search("folder")
        self.switch_on(self.pill("⌘"))
        self.switch_on(self.pill("⇧"))
        # Without ⇧ there would also be ⌘D and ⌥⌘L.
        self.see_cards("New Folder", "Go to Folder", "Open Applications", "Home Folder", "Open Utilities")
        self.switch_off(self.pill("⇧"))
        self.switch_on(self.pill("⌥"))
        self.see_cards("Open Downloads")

    def test_says_when_nothing_matches(self):
        self.launch()
        self.search("copy")
        self.switch_on(self.pill("⌘"))
        self.see_cards("Copy", "Duplicate")
        self.switch_on(self.pill("⇧"))
        self.see(name="No matching shortcut")
        self.see_cards()

    def test_filters_are_cleared_at_once(self):
        self.launch()
        self.assertIsNone(self.screen.find(Role.PUSH_BUTTON, "Clear Filters"))
        for token in ("⌘", "⌥", "⇧", "⌃", "Fn"):
            self.switch_on(self.pill(token))
        self.see(name="No matching shortcut")
        self.click(self.see(Role.PUSH_BUTTON, "Clear Filters"))
        self.see_gone(Role.PUSH_BUTTON, "Clear Filters")
        self.see_gone(name="No matching shortcut")
        for token in ("⌘", "⌥", "⇧", "⌃", "Fn"):
            self.assertFalse(self.pill(token).is_checked, token)
        self.card("Copy")

    def test_each_modifier_key_finds_its_shortcuts(self):
        self.launch()
        self.switch_on(self.pill("Fn"))
        self.see_cards("Show Desktop")

    def test_control_f_leads_to_the_search_and_escape_empties_it(self):
        self.launch()
        self.search("undo")
        self.see_cards("Undo", "Redo")
        self.keys("Escape")
        field = self.search_field
        self.wait_for(lambda: field.text == "", "the search field is empty")
        self.card("Copy")

    def test_control_f_selects_what_was_searched_before(self):
        self.launch()
        self.search("folder")
        self.keys("Tab")
        self.wait_for(lambda: not self.search_field.is_focused, "the keyboard has left the search field")
        self.search("copy")
        self.see_cards("Copy", "Duplicate")

    def test_the_search_holds_in_every_section(self):
        self.launch()
        self.search("screen")
        self.click(self.row("Windows & Apps"))
        self.see_cards("Lock Mac")
        self.click(self.row("Basics"))
        self.see(name="No matching shortcut")

    def test_finds_in_the_language_that_is_shown(self):
        self.defaults.write({"appLanguage": "cs", "hasSeenOnboarding": True})
        self.launch()
        with keyboard.layout("cz"):
            self.search("kopír")
            self.see_cards("Kopírovat", "Výřez do schránky", "Duplikovat vrstvu")
        self.search("copy")
        self.see(name="Žádná odpovídající zkratka")


class FavoritesTest(KeyvoraTestCase):
    def test_a_star_is_kept_even_if_the_program_is_killed(self):
        self.launch()
        self.switch_on(self.star("Undo"))
        self.switch_off(self.star("Paste"))
        self.program.kill()
        stored = self.defaults.read()
        self.assertEqual(["copy", "shot-area", "spotlight", "undo"], sorted(stored["favorites"]))

        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.assertTrue(self.star("Undo").is_checked)
        self.assertFalse(self.star("Paste").is_checked)
        self.assertTrue(self.star("Copy").is_checked)

    def test_a_card_without_its_star_leaves_the_favorites(self):
        self.launch()
        self.click(self.row("Favorites"))
        self.see_cards("Copy", "Paste", "Spotlight", "Capture Selection")
        self.click(self.star("Paste"))
        self.see_cards("Copy", "Spotlight", "Capture Selection")
        self.wait_for(
            lambda: sorted(self.defaults.read()["favorites"]) == ["copy", "shot-area", "spotlight"],
            "the favorites are stored",
        )

    def test_no_favorites_at_all_stay_none(self):
        self.defaults.write({"favorites": [], "hasSeenOnboarding": True})
        self.launch()
        self.click(self.row("Favorites"))
        self.see(name="No matching shortcut")

    def test_other_stored_values_survive(self):
        values = {"hasSeenOnboarding": True, "favorites": FIRST_FAVORITES, "someday": {"new": [1]}}
        self.defaults.write(values)
        self.launch()
        self.switch_on(self.star("Undo"))
        self.wait_for(lambda: "undo" in self.defaults.read()["favorites"], "the star is stored")
        self.assertEqual({"new": [1]}, self.defaults.read()["someday"])


if __name__ == "__main__":
    unittest.main()
