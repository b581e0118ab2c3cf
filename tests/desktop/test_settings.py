# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The settings, the person's own shortcuts, and the way of both to another computer."""

import json
import re
import subprocess
import unittest

from desktop import windows
from desktop.accessibility import Role
from desktop.keyvora import CZECH, SIDEBAR, KeyvoraTestCase

LOGIN = "Launch Keyvora at login"
SMART = "Smart suggestions from menu items you use"
LEARNING = "Learning mode – show a tip on first mouse use"
KEYS = "Keys (separate with + and → for steps)"


class SettingsTestCase(KeyvoraTestCase):
    def open_settings(self):
        self.click(self.row("Settings"))
        self.see(Role.HEADING, "Settings")

    def close_sheet(self, heading):
        self.keys("Escape")
        self.see_gone(Role.HEADING, heading)

    def open_editor(self):
        self.click(self.row("Add Custom"))
        self.see(Role.HEADING, "Add Custom Shortcut")
        self.see_focus("Title")

    def button(self, name):
        return self.see(Role.PUSH_BUTTON, name)

    def switch(self, name):
        return self.see(name=name)

    def write(self, title, keys):
        """Fills the two fields that a shortcut must have."""
        self.type(title)
        self.keys("Tab")
        self.see_focus(KEYS)
        self.type(keys)

    def add(self, title, keys):
        """Adds a shortcut by keyboard alone."""
        self.open_editor()
        self.write(title, keys)
        self.keys("Return")
        self.see_gone(Role.HEADING, "Add Custom Shortcut")

    def scroll_down(self):
        """To the end of the settings, where the person's own shortcuts are."""
        self.keys("End")
        self.see(name=re.compile(r"^Keyvora \d+(\.\d+)* \(\d+\)$"))

    @property
    def stored_customs(self):
        return self.defaults.read().get("customShortcuts", [])

    def see_stored(self, *titles):
        self.wait_for(
            lambda: [shortcut["title"] for shortcut in self.stored_customs] == list(titles),
            f"the own shortcuts {titles} are stored",
        )


class SwitchesTest(SettingsTestCase):
    @property
    def entry(self):
        return self.directory / "config" / "autostart" / "app.keyvora.Keyvora.desktop"

    def test_launch_at_login_comes_and_goes(self):
        self.launch()
        self.open_settings()
        login = self.switch(LOGIN)
        self.assertFalse(login.is_checked)
        self.switch_on(login)
        self.wait_for(self.entry.exists, "the autostart entry is there")
        subprocess.run(["desktop-file-validate", self.entry], check=True)
        self.assertRegex(self.entry.read_text(encoding="utf-8"), f"(?m)^Exec=.*{re.escape(self.binary)}")
        self.switch_off(login)
        self.wait_for(lambda: not self.entry.exists(), "the autostart entry is gone")

    def test_a_refused_launch_at_login_says_why_and_stays_off(self):
        self.entry.parent.write_text("no folder", encoding="utf-8")
        self.launch()
        self.open_settings()
        login = self.switch(LOGIN)
        self.click(login)
        self.see(Role.HEADING, "Couldn't change the setting")
        self.assertFalse(login.is_checked)
        self.keys("Return")
        self.see_gone(Role.HEADING, "Couldn't change the setting")
        self.see(Role.HEADING, "Settings")
        self.assertFalse(login.is_checked)

    def test_switches_are_kept(self):
        self.launch()
        self.open_settings()
        self.assertTrue(self.switch(SMART).is_checked)
        self.switch_off(self.switch(SMART))
        self.switch_on(self.switch(LEARNING))
        self.wait_for_stored(smartSuggestions=False, learningMode=True)

    def test_the_keyboard_stays_in_the_sheet_while_another_window_has_it(self):
        self.launch()
        self.open_settings()
        self.keys("Tab")
        self.see_focus(LOGIN)
        other = self.start("mousepad")
        self.wait_until_active(other)
        self.activate(self.program)
        self.see_focus(LOGIN)
        self.close_sheet("Settings")

    def test_works_without_a_mouse(self):
        self.launch()
        self.open_settings()
        self.see_focus("English")
        self.keys("Tab")
        self.see_focus(LOGIN)
        self.keys("Tab", "Tab")
        self.see_focus(LEARNING)
        self.keys("space")
        self.wait_for_stored(learningMode=True)
        self.keys("Tab")
        self.see_focus("Allow in Accessibility…")
        self.keys("Return")
        self.see(name="Already allowed.")
        self.keys("Tab", "Tab")
        self.see_focus("Import Backup…")
        self.close_sheet("Settings")


class LanguageTest(SettingsTestCase):
    def test_every_open_sheet_is_relabelled(self):
        self.launch()
        self.add("Nine", "F9")
        self.open_settings()
        self.click(self.see(Role.RADIO_BUTTON, "Čeština"))
        for heading in ("Nastavení", "Jazyk", "Chování", "Soukromí a oprávnění", "Záloha a přenos"):
            self.see(Role.HEADING, heading)
        self.see(name="Spouštět Keyvora po přihlášení")
        self.keys("End")
        self.see(Role.PUSH_BUTTON, "Smazat „Nine“")
        self.keys("Escape")
        self.see_gone(Role.HEADING, "Nastavení")
        for names in SIDEBAR:
            self.row(names[CZECH])
        self.click(self.row("Přidat vlastní"))
        self.see(Role.HEADING, "Přidat vlastní zkratku")
        self.see_focus("Název")
        self.see(Role.PUSH_BUTTON, "Stisknout klávesy")
        self.keys("Escape")
        self.see_gone(Role.HEADING, "Přidat vlastní zkratku")
        self.wait_for_stored(appLanguage="cs")
        self.click(self.row("Nastavení"))
        self.click(self.see(Role.RADIO_BUTTON, "English"))
        self.see(Role.HEADING, "Behavior")
        self.row("Settings")


class OwnShortcutsTest(SettingsTestCase):
    def test_a_written_shortcut_is_in_the_library(self):
        self.launch()
        self.open_editor()
        # There is nothing to save yet.
        self.keys("Return")
        self.see_focus("Title")
        self.write("Run Again", "F9+F10")
        self.keys("Return")
        self.see_gone(Role.HEADING, "Add Custom Shortcut")
        self.see_stored("Run Again")
        stored = self.stored_customs[0]
        self.assertRegex(stored["id"], "^custom-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$")
        self.assertEqual(["F9", "F10"], stored["keys"])
        self.assertEqual("Custom keyboard shortcut.", stored["detail"])
        self.search("run again")
        self.see_cards("Run Again")

    def test_pressed_keys_are_taken_whatever_they_mean_elsewhere(self):
        self.launch()
        self.open_editor()
        self.type("Lock")
        self.keys("Tab", "Tab")
        self.see_focus("Press keys")
        self.keys("space")
        self.see(name="Press the shortcut…")
        # The program's own key for the library, which must not act here.
        self.keys("ctrl+alt+space")
        self.see_gone(name="Press the shortcut…")
        field = self.see_focus(KEYS)
        self.assertEqual("⌃ + ⌥ + Space", field.text)
        self.keys("Return")
        self.see_gone(Role.HEADING, "Add Custom Shortcut")
        self.see_stored("Lock")
        self.assertEqual(["⌃", "⌥", "Space"], self.stored_customs[0]["keys"])

    def test_a_conflict_is_told_while_it_is_written_and_in_the_list(self):
        self.launch()
        self.add("Run", "F9")
        self.open_editor()
        self.write("Run Twice", "F9")
        self.see(name="This combination is already used by “Run”")
        self.type("9")
        self.see_gone(name="This combination is already used by “Run”")
        self.keys("BackSpace")
        self.see(name="This combination is already used by “Run”")
        self.keys("Return")
        self.see_stored("Run", "Run Twice")
        self.open_settings()
        self.scroll_down()
        self.see(name="Conflicts with “Run”")
        self.see(name="Conflicts with “Run Twice”")

    def test_a_deleted_shortcut_can_be_put_back(self):
        self.launch()
        for number in (5, 6, 7):
            self.add(f"Number {number}", f"F{number}")
        self.open_settings()
        self.scroll_down()
        self.click(self.button("Delete “Number 6”"))
        self.see_stored("Number 5", "Number 7")
        self.see_gone(Role.PUSH_BUTTON, "Delete “Number 6”")
        self.see(name="“Number 6” was deleted.")
        self.click(self.button("Undo"))
        self.see_stored("Number 5", "Number 6", "Number 7")
        self.see(Role.PUSH_BUTTON, "Delete “Number 6”")
        self.click(self.button("Delete “Number 5”"))
        self.see_stored("Number 6", "Number 7")
        self.keys("ctrl+z")
        self.see_stored("Number 5", "Number 6", "Number 7")

    def test_pressing_keys_ends_when_another_window_takes_the_keyboard(self):
        self.launch()
        self.open_editor()
        self.click(self.button("Press keys"))
        self.see(name="Press the shortcut…")
        other = self.start("mousepad")
        self.wait_until_active(other)
        self.see_gone(name="Press the shortcut…")
        self.activate(self.program)
        field = self.see_focus(KEYS)
        self.type("F9")
        self.wait_for(lambda: field.text == "F9", "the keys are written")

    def test_escape_saves_nothing(self):
        self.launch()
        self.open_editor()
        self.write("Never", "F9")
        self.close_sheet("Add Custom Shortcut")
        self.assertEqual([], self.stored_customs)


class BackupTest(SettingsTestCase):
    def begin(self, button, dialog):
        self.click(self.button(button))
        self.window(self.program, dialog)

    def see_dialog_gone(self):
        self.wait_for(lambda: len(windows.of_process(self.program.pid)) == 1, "the dialog is gone")

    def import_file(self, path):
        self.begin("Import Backup…", "Choose Backup")
        # What was said of an earlier file is gone, so that what comes is said of this one.
        self.see_gone(name="Couldn't read the file.")
        self.see_gone(name="Backup imported.")
        self.enter_file_name(path)
        self.see_dialog_gone()

    def test_goes_out_and_comes_back(self):
        path = self.directory / "saved.json"
        self.launch()
        self.add("Mine", "F9")
        self.switch_on(self.star("Undo"))
        favorites = set(self.defaults.read()["favorites"])
        self.open_settings()
        self.begin("Export Backup…", "Save Backup")
        self.assertEqual("Keyvora-zaloha.json", self.file_name().text)
        self.enter_file_name(path)
        self.see(name="Backup saved.")
        backup = json.loads(path.read_text(encoding="utf-8"))
        self.assertEqual({"customShortcuts", "favorites"}, backup.keys())
        self.assertEqual(["Mine"], [shortcut["title"] for shortcut in backup["customShortcuts"]])
        self.assertEqual(favorites, set(backup["favorites"]))

        # A second import finds everything there.
        self.import_file(path)
        self.see(name="Backup imported.")
        self.see_stored("Mine")

        self.close_sheet("Settings")
        self.keys("ctrl+q")
        self.program.wait()
        self.defaults.write({"hasSeenOnboarding": True, "favorites": ["copy"]})
        self.launch()
        self.open_settings()
        self.import_file(path)
        self.see(name="Backup imported.")
        self.see_stored("Mine")
        self.assertEqual(favorites | {"copy"}, set(self.defaults.read()["favorites"]))
        self.close_sheet("Settings")
        self.search("mine")
        self.see_cards("Mine")

    def test_a_file_that_is_no_backup_changes_nothing(self):
        self.launch()
        self.add("Mine", "F9")
        self.open_settings()
        before = self.defaults.path.read_bytes()
        hostile = {
            "half": b'{"customShortcuts":[]}',
            "deep": b"[" * 200_000,
            "binary": bytes(range(256)) * 64,
        }
        for name, content in hostile.items():
            with self.subTest(name):
                path = self.directory / f"{name}.json"
                path.write_bytes(content)
                self.import_file(path)
                self.see(name="Couldn't read the file.")
                self.assertEqual(before, self.defaults.path.read_bytes())

    def test_cancelling_says_what_it_says(self):
        self.launch()
        self.open_settings()
        self.begin("Import Backup…", "Choose Backup")
        self.keys("Escape")
        self.see_dialog_gone()
        self.see(name="Couldn't read the file.")
        self.begin("Export Backup…", "Save Backup")
        self.keys("Escape")
        self.see_dialog_gone()
        self.see_gone(name="Couldn't read the file.")

    def test_the_dialogs_speak_czech(self):
        self.defaults.write({"hasSeenOnboarding": True, "appLanguage": "cs"})
        self.launch()
        self.click(self.row("Nastavení"))
        for button, title in (("Exportovat zálohu…", "Uložit zálohu"), ("Importovat zálohu…", "Vybrat zálohu")):
            self.begin(button, title)
            self.keys("Escape")
            self.see_dialog_gone()
        self.see(name="Soubor se nepodařilo načíst.")


if __name__ == "__main__":
    unittest.main()
