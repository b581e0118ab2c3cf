# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""How the program starts, comes to the front, and ends."""

import os
import signal
import unittest

from desktop import windows
from desktop.accessibility import Role
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase, is_resident


class FirstLaunchTest(KeyvoraTestCase):
    def setUp(self):
        super().setUp()
        self.defaults.write({})

    def test_opens_the_window_and_greets(self):
        self.launch()
        self.click(self.see(Role.PUSH_BUTTON, "Get Started"))
        self.see_gone(Role.PUSH_BUTTON, "Get Started")
        self.wait_for_stored(hasLaunchedBefore=True, hasSeenOnboarding=True)

    def test_escape_closes_the_greeting(self):
        self.launch()
        self.see(Role.PUSH_BUTTON, "Get Started")
        self.keys("Escape")
        self.see_gone(Role.PUSH_BUTTON, "Get Started")

    def test_the_greeting_is_in_the_language_of_the_desktop(self):
        self.launch(LANG="cs_CZ.UTF-8")
        self.see(Role.PUSH_BUTTON, "Začít")

    def test_greets_once_even_if_the_greeting_was_not_closed(self):
        self.launch()
        self.see(Role.PUSH_BUTTON, "Get Started")
        self.program.kill()
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.see(Role.HEADING, "Library")
        self.assertIsNone(self.screen.find(Role.PUSH_BUTTON, "Get Started"))

    def test_the_window_is_in_the_middle_of_the_screen(self):
        self.launch()
        frame = windows.frame_free_geometry(self.window(self.program))
        self.assertEqual((980, 678), frame[2:])
        self.assertAlmostEqual(1280 / 2, frame.x + frame.width / 2, delta=2)
        self.assertAlmostEqual(800 / 2, frame.y + frame.height / 2, delta=30)


class LaterLaunchTest(KeyvoraTestCase):
    def test_opens_no_window_after_the_first_launch(self):
        self.launch()
        self.assertEqual(0, self.program.terminate())
        self.launch_resting()

    def test_a_second_start_shows_the_window_of_a_resting_program(self):
        self.defaults.write({"hasLaunchedBefore": True, "hasSeenOnboarding": True})
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.window(self.program, WINDOW_TITLE)
        self.wait_until_active(self.program)

    def test_a_second_start_brings_the_window_to_the_front(self):
        self.launch()
        mousepad = self.start("mousepad", "--disable-server")
        self.activate(mousepad)
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.assertEqual(1, len(windows.of_process(self.program.pid)))

    def test_a_second_start_brings_back_a_minimized_window(self):
        self.launch()
        window = self.window(self.program)
        self.keys("ctrl+m")
        self.wait_for(lambda: windows.is_minimized(window), "the window is minimized")
        self.assertEqual(0, self.start_again())
        self.wait_for(lambda: windows.is_shown(window), "the window shows")
        self.wait_until_active(self.program)

    def test_of_starts_at_the_same_instant_one_remains(self):
        starts = [self.start_program() for _ in range(50)]

        def running():
            return [process for process in starts if process.is_running]

        self.wait_for(lambda: len(running()) == 1, "one start is left", seconds=120)
        self.program = running()[0]
        for process in starts:
            if process is not self.program:
                self.assertEqual(0, process.wait())
        self.window(self.program, WINDOW_TITLE)
        self.assertEqual(1, len(windows.all_windows()))

    def test_a_start_by_a_person_opens_the_window_where_no_icon_can_be_seen(self):
        self.defaults.write({"hasLaunchedBefore": True, "hasSeenOnboarding": True})
        for variable in ("XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID"):
            with self.subTest(variable):
                self.launch(**{variable: "launcher-0-desktop_TIME0"})
                self.assertEqual(0, self.program.terminate())


class EndTest(KeyvoraTestCase):
    def test_ends_within_a_second_when_the_session_does(self):
        self.launch()
        self.assertEqual(0, self.program.terminate(seconds=1))
        self.assertFalse(is_resident())

    def test_ends_when_it_rests(self):
        self.defaults.write({"hasLaunchedBefore": True})
        self.launch_resting()
        self.assertEqual(0, self.program.terminate(seconds=1))

    def test_ends_on_an_interrupt_from_a_terminal(self):
        self.launch()
        os.kill(self.program.pid, signal.SIGINT)
        self.assertEqual(0, self.program.wait(1))

    def test_stores_nothing_but_whole_defaults(self):
        self.launch()
        self.program.kill()
        self.assertEqual({"hasLaunchedBefore": True, "hasSeenOnboarding": True}, self.defaults.read())


if __name__ == "__main__":
    unittest.main()
