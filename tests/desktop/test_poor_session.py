# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""A session in which something is missing or full: the program makes do without it, and without a word."""

import os
import pathlib
import shutil
import subprocess
import unittest

from desktop.accessibility import Role
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase

# Nobody can make anything there, whatever they may do elsewhere.
NOWHERE = "/sys/nowhere"

# Turns into the program, for which the folder is a disk of its own that begins with one file.
SMALL_DISK = 'mount -t tmpfs -o size=64k tmpfs "$0" && cp "$0.json" "$0/defaults.json" && exec "$@"'


class MissingTest(KeyvoraTestCase):
    """Whatever it prints and whatever it ends with but 0 fails the test."""

    def start_with(self, **environment):
        self.program = self.start_program(**environment)
        self.window(self.program, WINDOW_TITLE)
        self.assertEqual(0, self.program.terminate())

    def test_a_session_bus_that_is_not_there(self):
        self.start_with(DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere/bus", XDG_RUNTIME_DIR=str(self.directory))

    def test_an_address_of_a_bus_that_is_none(self):
        self.start_with(DBUS_SESSION_BUS_ADDRESS="nonsense", XDG_RUNTIME_DIR=str(self.directory))

    def test_a_home_in_which_nothing_can_be_written(self):
        places = ("HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME")
        self.start_with(**dict.fromkeys(places, NOWHERE))

    def test_a_language_that_is_not_installed(self):
        self.start_with(LANG="xx_XX.UTF-8", LC_ALL="xx_XX.UTF-8")

    def test_everything_at_once(self):
        self.start_with(
            DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere/bus",
            XDG_RUNTIME_DIR=str(self.directory),
            HOME=NOWHERE,
            XDG_CONFIG_HOME=NOWHERE,
            XDG_STATE_HOME=NOWHERE,
            XDG_CACHE_HOME=NOWHERE,
        )


class FullDiskTest(KeyvoraTestCase):
    def setUp(self):
        super().setUp()
        place = self.defaults.path.parent
        shutil.copy(self.defaults.path, f"{place}.json")
        self.defaults.path.unlink()
        # Not only root may have a view of the file systems that it may change.
        as_root = () if os.getuid() == 0 else ("--user", "--map-root-user")
        self.starter = ("unshare", *as_root, "--mount", "sh", "-c", SMALL_DISK, str(place))
        if subprocess.run([*self.starter, "true"], capture_output=True).returncode != 0:
            self.skipTest("the system lets nobody mount a disk of their own")

    @property
    def disk(self):
        """The folder as the program sees it."""
        return pathlib.Path(f"/proc/{self.program.pid}/root{self.defaults.path.parent}")

    def fill(self):
        with open(self.disk / "filler", "wb", buffering=0) as filler:
            try:
                while filler.write(b"x" * 1024):
                    pass
            except OSError:
                pass

    def favorite(self, title):
        self.star(title).press()
        self.wait_for(lambda: self.star(title).is_checked, f"{title} is a favourite")

    def test_keeps_what_was_stored_and_stores_again_when_there_is_room(self):
        self.launch(*self.starter)
        self.favorite("Undo")
        self.defaults.path = self.disk / "defaults.json"
        whole = self.defaults.read()
        self.assertIn("undo", whole["favorites"])
        self.fill()
        self.favorite("Redo")
        self.assertEqual(whole, self.defaults.read())
        self.assertEqual({"defaults.json", "filler"}, set(os.listdir(self.disk)))
        (self.disk / "filler").unlink()
        self.favorite("Save")
        self.assertLessEqual({"undo", "redo", "save"}, set(self.defaults.read()["favorites"]))
        self.assertEqual(["defaults.json"], os.listdir(self.disk))
        self.see(Role.HEADING, "Library")


if __name__ == "__main__":
    unittest.main()
