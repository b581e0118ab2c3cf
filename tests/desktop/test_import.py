# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Shortcuts come from the menus of applications that run."""

import contextlib
import re
import unittest

from gi.repository import Gio, GLib

from desktop.accessibility import Role
from desktop.applications import Applications
from desktop.keyvora import KeyvoraTestCase
from desktop.processes import stopped

IMPORT = re.compile("^(Import from Menu|Import z menu)$")
IMPORTED = re.compile(r"^(Imported|Importováno) (\d+) ")
NO_MENU = "The active app's menu is unavailable or contains no shortcuts."
NO_PERMISSION = "To import, allow Keyvora Accessibility access in System Settings."


class ImportTestCase(Applications, KeyvoraTestCase):
    def choose(self, item):
        """Chooses from the menu of the import button, which is there when no import is under way."""
        self.click(self.see(Role.PUSH_BUTTON, IMPORT))
        self.click(self.see(Role.MENU_ITEM, item))

    def import_frontmost(self, name):
        self.choose(f"Import from Active App “{name}”")

    def import_all(self):
        self.choose("Import from All Running Apps")

    def see_message(self, text):
        return self.see(Role.ALERT, text)

    def see_imported(self):
        """Waits for the message of success and returns the number in it."""
        return int(IMPORTED.match(self.see_message(IMPORTED).name)[2])

    def imported(self, app):
        """The stored shortcuts of an application, by title."""
        stored = self.defaults.read().get("customShortcuts", [])
        return {shortcut["title"]: shortcut for shortcut in stored if shortcut["apps"] == [app]}


class FrontmostImportTest(ImportTestCase):
    def launch_from(self, process):
        """Starts the program while a person works in another one."""
        self.activate(process)
        self.launch()

    def test_brings_in_the_menu_of_the_application_the_user_came_from(self):
        self.launch_from(self.start_mousepad())
        self.import_frontmost("Mousepad")
        count = self.see_imported()
        self.see_message(f"Imported {count} shortcuts from Mousepad.")
        shortcuts = self.imported("Mousepad")
        self.assertEqual(count, len(self.defaults.read()["customShortcuts"]))
        self.assertEqual(
            {
                "id": "menu-Mousepad-Save As...-⌃⇧S",
                "title": "Save As...",
                "keys": ["⌃", "⇧", "S"],
                "category": "Základy",
                "apps": ["Mousepad"],
                "detail": "Imported from Mousepad's menu.",
            },
            shortcuts["Save As..."],
        )

    def test_the_library_shows_what_was_imported(self):
        self.launch_from(self.start_mousepad())
        self.import_frontmost("Mousepad")
        self.see_imported()
        self.search("Save As")
        card = self.card("Save As...")
        self.assertTrue(card.is_showing)
        self.assertEqual("Control Shift S. Imported from Mousepad's menu.", card.description)

    def test_finds_nothing_new_the_second_time(self):
        self.launch_from(self.start_mousepad())
        self.import_frontmost("Mousepad")
        self.see_imported()
        before = self.imported("Mousepad")
        self.import_frontmost("Mousepad")
        self.see_message("No new shortcuts were found in the menu.")
        self.assertEqual(before, self.imported("Mousepad"))

    def test_says_when_an_application_has_no_menu_bar(self):
        self.launch_from(self.start_zenity())
        self.import_frontmost("Zenity")
        self.see_message(NO_MENU)
        self.assertEqual({}, self.imported("Zenity"))

    def test_says_when_an_application_has_ended(self):
        mousepad = self.start_mousepad()
        self.launch_from(mousepad)
        mousepad.kill()
        self.import_frontmost("Mousepad")
        self.see_message(NO_MENU)

    def test_says_when_no_application_is_known(self):
        self.launch()
        self.import_frontmost("Mac")
        self.see_message("Couldn't read the active app. Switch to it and try importing again.")

    def test_imports_from_qt_without_taking_mnemonics_for_keys(self):
        self.launch_from(self.start_featherpad())
        self.import_frontmost("FeatherPad")
        self.see_imported()
        shortcuts = self.imported("FeatherPad")
        self.assertEqual(["⌃", "N"], shortcuts["New"]["keys"])
        self.assertEqual(["⌃", "⇧", "S"], shortcuts["Save As"]["keys"])
        for shortcut in shortcuts.values():
            *modifiers, key = shortcut["keys"]
            self.assertFalse(modifiers == ["⌥"] and key.casefold() in shortcut["title"].casefold(), shortcut)

    def test_imports_from_gtk_4(self):
        self.launch_from(self.start_gtk4_demo())
        self.import_frontmost("gtk4-demo-application")
        self.assertEqual(12, self.see_imported())
        self.assertEqual(["⌃", "⇧", "S"], self.imported("gtk4-demo-application")["Save As..."]["keys"])

    def test_imports_from_an_office_suite(self):
        self.launch_from(self.start_writer())
        self.import_frontmost("LibreOffice Writer")
        self.assertGreater(self.see_imported(), 60)
        shortcuts = self.imported("LibreOffice Writer")
        self.assertEqual(["⌃", "⇧", "S"], shortcuts["Save As..."]["keys"])
        self.assertEqual(["⌃", "S"], shortcuts["Save"]["keys"])
        # Its second, hidden menu bar has another key for this one, a wrong one.
        self.assertEqual(["⌃", "Return"], shortcuts["Page Break"]["keys"])


class CzechImportTest(ImportTestCase):
    LANG = "cs_CZ.UTF-8"

    def test_tells_of_an_import_in_czech(self):
        self.activate(self.start_mousepad())
        self.launch()
        self.choose("Import z aktivní aplikace „Mousepad“")
        count = self.see_imported()
        self.see_message(f"Importováno {count} zkratek z aplikace Mousepad.")
        self.choose("Import z aktivní aplikace „Mousepad“")
        self.see_message("V menu nebyly nalezeny žádné nové zkratky.")
        self.search("Save As")
        self.assertEqual("Control Shift S. Importováno z menu aplikace Mousepad.", self.card("Save As...").description)

    def test_tells_in_czech_what_prevents_an_import(self):
        self.launch()
        self.choose("Import z aktivní aplikace „Mac“")
        self.see_message("Aktivní aplikaci se nepodařilo načíst. Přepněte do ní a zkuste import znovu.")
        self.activate(self.start_zenity())
        self.activate(self.program)
        self.choose("Import z aktivní aplikace „Zenity“")
        self.see_message("Menu aktivní aplikace není dostupné nebo neobsahuje zkratky.")

    def test_tells_of_all_applications_in_czech(self):
        self.launch()
        self.choose("Import ze všech spuštěných aplikací")
        self.see_message("Nenašel jsem žádné spuštěné aplikace k importu.")
        self.start_mousepad()
        self.activate(self.program)
        self.choose("Import ze všech spuštěných aplikací")
        self.see_message(f"Importováno {self.see_imported()} zkratek z 1 aplikací.")
        self.choose("Import ze všech spuštěných aplikací")
        self.see_message("V žádné spuštěné aplikaci nebyly nalezeny nové zkratky.")


class AllImportTest(ImportTestCase):
    def test_reads_every_application_but_the_one_that_is_stopped(self):
        self.start_mousepad()
        galculator = self.start_galculator()
        self.start_featherpad()
        self.launch()
        with stopped(galculator):
            self.import_all()
            self.see(Role.PUSH_BUTTON, "Importing… (2/3)")
            count = self.see_imported()
        self.see_message(f"Imported {count} shortcuts from 2 apps.")
        self.see(Role.PUSH_BUTTON, IMPORT)
        mousepad, featherpad = self.imported("Mousepad"), self.imported("FeatherPad")
        self.assertIn("Save As...", mousepad)
        self.assertIn("Save As", featherpad)
        self.assertEqual(count, len(mousepad) + len(featherpad))

    def test_the_window_stays_alive_meanwhile(self):
        with contextlib.ExitStack() as stack:
            for _ in range(3):
                stack.enter_context(stopped(self.start_galculator()))
            self.launch()
            self.import_all()
            self.see(Role.PUSH_BUTTON, "Importing… (1/3)")
            self.search("Copy")
            self.card("Copy")
            self.see(Role.PUSH_BUTTON, re.compile(r"^Importing… \([123]/3\)$"))

    def test_says_when_nothing_else_runs(self):
        self.launch()
        self.import_all()
        self.see_message("No running apps found to import from.")

    def test_takes_what_two_applications_share_once_and_from_the_first(self):
        self.start_mousepad()
        self.start_featherpad()
        self.launch()
        self.import_all()
        self.see_imported()
        mousepad, featherpad = self.imported("Mousepad"), self.imported("FeatherPad")
        self.assertEqual(["⌃", "Z"], mousepad["Undo"]["keys"])
        # The other one has the very same.
        self.assertNotIn("Undo", featherpad)
        signatures = [title.lower() + "".join(app[title]["keys"]) for app in (mousepad, featherpad) for title in app]
        self.assertEqual(len(signatures), len(set(signatures)))


class TrustTest(ImportTestCase):
    def launch_untrusted(self):
        """Starts the program beside an application and then takes its permission to read others away."""
        self.activate(self.start_mousepad())
        self.launch()
        self.addCleanup(set_accessibility, True)
        set_accessibility(False)

    def test_asks_before_it_reads_anything_and_imports_once_it_is_allowed(self):
        self.launch_untrusted()
        self.import_frontmost("Mousepad")
        allow = self.see(Role.PUSH_BUTTON, "Allow")
        self.assertNotIn("customShortcuts", self.defaults.read())
        self.click(allow)
        self.see_gone(Role.PUSH_BUTTON, "Allow")
        self.see_message(NO_PERMISSION)
        self.wait_for(is_accessibility_on, "accessibility is on")
        self.import_frontmost("Mousepad")
        self.see_imported()
        self.assertIn("Save As...", self.imported("Mousepad"))

    def test_takes_no_for_an_answer(self):
        self.launch_untrusted()
        self.import_all()
        self.click(self.see(Role.PUSH_BUTTON, "Not Now"))
        self.see_gone(Role.PUSH_BUTTON, "Not Now")
        self.see_message(NO_PERMISSION)
        self.assertFalse(is_accessibility_on())
        self.assertNotIn("customShortcuts", self.defaults.read())

    def test_asks_again_the_next_time(self):
        self.launch_untrusted()
        for _ in range(2):
            self.import_frontmost("Mousepad")
            self.click(self.see(Role.PUSH_BUTTON, "Not Now"))
            self.see_gone(Role.PUSH_BUTTON, "Not Now")


def set_accessibility(is_on):
    """Turns the desktop's support for assistive technologies on or off, as its settings do."""
    _ask_accessibility("Set", GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", is_on))))


def is_accessibility_on():
    return _ask_accessibility("Get", GLib.Variant("(ss)", ("org.a11y.Status", "IsEnabled")))[0]


def _ask_accessibility(method, arguments):
    reply = Gio.bus_get_sync(Gio.BusType.SESSION, None).call_sync(
        "org.a11y.Bus",
        "/org/a11y/bus",
        "org.freedesktop.DBus.Properties",
        method,
        arguments,
        None,
        Gio.DBusCallFlags.NONE,
        5000,
        None,
    )
    return reply.unpack()


del ImportTestCase

if __name__ == "__main__":
    unittest.main()
