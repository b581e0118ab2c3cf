# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""How the program ends: when it is asked to, and when what it stands on goes away."""

import contextlib
import os
import re
import signal
import socket
import unittest

from desktop import keyboard
from desktop.accessibility import Role
from desktop.applications import Applications
from desktop.keyvora import BUS_NAME, WINDOW_TITLE, KeyvoraTestCase, is_resident
from desktop.processes import stopped
from desktop.sessions import Bus, Screen

RESTING = {"hasLaunchedBefore": True, "hasSeenOnboarding": True}

IMPORTING = re.compile("^Importing…")

# What the toolkit says and how it ends when the X server is gone.
NO_SCREEN = "The X11 connection broke"
NO_SCREEN_EXIT_CODE = 1


class AskedTest(KeyvoraTestCase, Applications):
    """In whatever state it is, a signal ends it: promptly, in order, and with nothing to say."""

    def end(self, which=signal.SIGTERM):
        os.kill(self.program.pid, which)
        self.assertEqual(0, self.program.wait())
        self.assertFalse(is_resident())

    def test_on_every_signal_that_ends_programs(self):
        self.defaults.write(RESTING)
        for which in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(which.name):
                self.launch_resting()
                self.end(which)

    def test_on_several_signals_at_once(self):
        self.launch()
        for which in (signal.SIGHUP, signal.SIGTERM, signal.SIGINT, signal.SIGTERM):
            with contextlib.suppress(ProcessLookupError):
                os.kill(self.program.pid, which)
        self.assertEqual(0, self.program.wait())

    def test_with_its_window_open(self):
        self.launch()
        self.end()

    def test_with_a_sheet_open(self):
        self.launch()
        self.click(self.row("Settings"))
        self.see(Role.HEADING, "Settings")
        self.end()

    def test_with_a_menu_open(self):
        self.launch()
        self.click(self.see(Role.PUSH_BUTTON, "Import from Menu"))
        self.see(Role.MENU_ITEM, "Import from All Running Apps")
        self.end()

    def test_with_a_dialog_of_the_desktop_open(self):
        self.launch()
        self.click(self.row("Settings"))
        self.see(Role.HEADING, "Settings")
        self.see(Role.PUSH_BUTTON, "Export Backup…").press()
        self.file_name()
        self.end()

    def test_while_it_records_keys(self):
        self.launch()
        self.click(self.row("Add Custom"))
        self.see(Role.HEADING, "Add Custom Shortcut")
        self.click(self.see(Role.PUSH_BUTTON, "Press keys"))
        self.see(name=re.compile("Press the shortcut…"))
        self.end()

    def test_while_the_hot_key_is_held(self):
        self.defaults.write(RESTING)
        self.launch_resting()
        with keyboard.held("Control_L", "Alt_L", "space"):
            self.wait_until_active(self.program)
            self.end()

    def test_while_it_imports_from_an_application_that_hangs(self):
        mousepad = self.start_mousepad()
        self.activate(mousepad)
        self.launch()
        with stopped(mousepad):
            self.click(self.see(Role.PUSH_BUTTON, "Import from Menu"))
            self.click(self.see(Role.MENU_ITEM, "Import from Active App “Mousepad”"))
            self.see(Role.PUSH_BUTTON, IMPORTING)
            self.end()

    def test_while_the_print_server_is_silent(self):
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(str(self.directory / "silent"))
            silent.listen()
            self._environment["CUPS_SERVER"] = str(self.directory / "silent")
            self.begin_printing()
            silent.accept()[0].detach()
            self.end()

    def test_while_the_print_server_takes_no_calls(self):
        with contextlib.ExitStack() as stack:
            busy = stack.enter_context(socket.socket())
            busy.bind(("127.0.0.1", 0))
            busy.listen(0)
            # Those who wait to be heard are as many as it takes; whoever calls now gets no answer.
            for _ in range(2):
                waiting = stack.enter_context(socket.socket())
                waiting.setblocking(False)
                waiting.connect_ex(busy.getsockname())
            self._environment["CUPS_SERVER"] = "127.0.0.1:{}".format(busy.getsockname()[1])
            self.begin_printing()
            self.end()

    def begin_printing(self):
        self.launch()
        self.click(self.row("Cheat Sheet"))
        self.click(self.see(Role.PUSH_BUTTON, "Export Cheat Sheet…"))
        self.see(Role.HEADING, "Export Cheat Sheet")
        self.click(self.see(Role.PUSH_BUTTON, "Print…"))
        self.see_gone(Role.HEADING, "Export Cheat Sheet")


class ScreenGoneTest(KeyvoraTestCase):
    """When the X server goes, the program goes with it, as every program of that screen."""

    def setUp(self):
        super().setUp()
        self.allow_output(NO_SCREEN)
        self.screen_of_program = Screen(self)

    def start_there(self):
        self.program = self.start_program(**self.screen_of_program.environment)
        self.wait_for(is_resident, "the program is on the session bus")

    def screen_goes(self):
        self.screen_of_program.process.kill()
        self.assertEqual(NO_SCREEN_EXIT_CODE, self.program.wait())
        self.allow_exit_code(NO_SCREEN_EXIT_CODE)
        self.assertFalse(is_resident())

    def test_while_it_rests(self):
        self.defaults.write(RESTING)
        self.start_there()
        self.screen_goes()
        self.assertEqual(RESTING, self.defaults.read())

    def test_and_keeps_what_was_changed_just_before(self):
        self.start_there()
        self.star("Undo").press()
        self.screen_goes()
        self.assertIn("undo", self.defaults.read()["favorites"])

    def test_in_the_middle_of_an_import(self):
        manager = self.screen_of_program.start_window_manager()
        there = {**os.environ, **self.screen_of_program.environment}
        mousepad = self.start("mousepad", "--disable-server", environment=there)
        self.tree(mousepad)
        self.start_there()
        with stopped(mousepad):
            self.see(Role.PUSH_BUTTON, "Import from Menu").press()
            self.see(Role.MENU_ITEM, "Import from All Running Apps")
            self.screen_of_program.press("Down", "Down", "Return")
            self.see(Role.PUSH_BUTTON, IMPORTING)
            self.screen_goes()
        # They go with their screen, too.
        mousepad.wait()
        manager.wait()

    def test_and_a_later_start_finds_everything(self):
        self.start_there()
        self.star("Undo").press()
        self.screen_goes()
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.wait_for(lambda: self.star("Undo").is_checked, "the star is there")


class BusGoneTest(KeyvoraTestCase):
    """A session without its bus is over: another start could not find the program any more."""

    def setUp(self):
        super().setUp()
        self.bus = Bus(self)

    def start_there(self):
        self.program = self.start_program(**self.bus.environment)
        self.bus.wait_for_name(BUS_NAME)

    def bus_goes(self):
        self.bus.process.kill()
        self.assertEqual(0, self.program.wait())

    def test_while_it_rests(self):
        self.defaults.write(RESTING)
        self.start_there()
        self.bus_goes()
        self.assertEqual(RESTING, self.defaults.read())

    def test_with_its_window_open(self):
        self.start_there()
        self.window(self.program, WINDOW_TITLE)
        self.bus_goes()

    def test_a_bus_that_is_asked_to_end_is_the_same(self):
        self.start_there()
        self.bus.process.terminate()
        self.assertEqual(0, self.program.wait())


if __name__ == "__main__":
    unittest.main()
