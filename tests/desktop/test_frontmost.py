# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The program knows which application its user came from."""

import unittest

from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase

LABEL_ROLES = (Role.LABEL, Role.STATIC)


class FrontmostTest(KeyvoraTestCase):
    def start_mousepad(self):
        mousepad = self.start("mousepad", "--disable-server")
        self.window(mousepad)
        return mousepad

    def start_galculator(self):
        galculator = self.start("galculator")
        self.window(galculator)
        return galculator

    def test_names_a_mac_where_there_was_no_application(self):
        self.launch()
        self.see(LABEL_ROLES, "Mac")

    def test_names_the_application_it_was_started_from(self):
        self.activate(self.start_mousepad())
        self.launch()
        self.see(LABEL_ROLES, "Mousepad")

    def test_follows_the_applications_in_turn(self):
        self.launch()
        mousepad, galculator = self.start_mousepad(), self.start_galculator()
        for process, name in ((mousepad, "Mousepad"), (galculator, "Galculator"), (mousepad, "Mousepad")):
            self.activate(process)
            self.see(LABEL_ROLES, name)

    def test_itself_does_not_count(self):
        self.launch()
        galculator = self.start_galculator()
        self.activate(galculator)
        self.see(LABEL_ROLES, "Galculator")
        self.activate(self.program)
        self.watch(lambda: not self.screen.find(LABEL_ROLES, "Galculator"), "the name changes", seconds=0.5)

    def test_keeps_the_name_of_an_application_that_has_ended(self):
        self.launch()
        galculator = self.start_galculator()
        self.activate(galculator)
        self.see(LABEL_ROLES, "Galculator")
        galculator.kill()
        self.wait_until_active(self.program)
        self.see(LABEL_ROLES, "Galculator")

    def test_follows_while_the_window_is_closed(self):
        self.launch()
        self.keys("ctrl+w")
        self.activate(self.start_galculator())
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.see(LABEL_ROLES, "Galculator")


if __name__ == "__main__":
    unittest.main()
