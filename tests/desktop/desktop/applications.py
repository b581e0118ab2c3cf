# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Real applications of every common toolkit, and their menus."""

import itertools
import shutil

from . import menus, pointer, windows

ASSISTANT = "/usr/lib/qt6/bin/assistant"
FIREFOX = "/usr/lib/firefox-esr/firefox-esr"
WRITER = "/usr/lib/libreoffice/program/soffice.bin"

# An office suite that has made its profile ends like this, and wants to be started again.
WRITER_WANTS_RESTART = 81

# Large applications may take their time on a busy machine.
LARGE_SECONDS = 60

WRITER_SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
  <item oor:path="/org.openoffice.Office.Common/Misc">
    <prop oor:name="FirstRun" oor:op="fuse"><value>false</value></prop>
    <prop oor:name="ShowTipOfTheDay" oor:op="fuse"><value>false</value></prop>
  </item>
</oor:items>
"""

FIREFOX_SETTINGS = """user_pref("browser.aboutwelcome.enabled", false);
user_pref("browser.shell.checkDefaultBrowser", false);
user_pref("datareporting.policy.dataSubmissionEnabled", false);
user_pref("ui.key.menuAccessKeyFocuses", true);
"""


class Applications:
    """For test cases: starts applications and works their menus as a person does, with the pointer."""

    # Starting

    def start_mousepad(self):
        """An editor of GTK 3."""
        return self._started("mousepad", "--disable-server")

    def start_galculator(self):
        """A calculator of GTK 3."""
        return self._started("galculator")

    def start_zenity(self):
        """A window of GTK 3 without a menu bar."""
        return self._started("zenity", "--info", "--text", "Nothing to choose from")

    def start_gtk4_demo(self):
        """A window of GTK 4 with a menu bar."""
        return self._started("gtk4-demo-application")

    def start_featherpad(self):
        """An editor of Qt 5."""
        return self._started("featherpad", "--standalone")

    def start_assistant(self):
        """A reader of Qt 6."""
        return self._started(ASSISTANT)

    def start_writer(self):
        """LibreOffice's word processor, with a fresh profile."""
        profile = self.directory / "writer"
        (profile / "user").mkdir(parents=True)
        (profile / "user" / "registrymodifications.xcu").write_text(WRITER_SETTINGS, encoding="utf-8")
        command = (WRITER, f"-env:UserInstallation=file://{profile}")
        self._require(WRITER)
        while self.start(*command, "--headless", "--terminate_after_init").wait(LARGE_SECONDS) == WRITER_WANTS_RESTART:
            pass
        return self._started(*command, "--writer", "--norestore", "--nologo", seconds=LARGE_SECONDS)

    def start_firefox(self):
        """Firefox, with a fresh profile. Its menu bar shows when a menu is opened with the keyboard."""
        profile = self.directory / "firefox"
        profile.mkdir()
        (profile / "user.js").write_text(FIREFOX_SETTINGS, encoding="utf-8")
        return self._started(FIREFOX, "--no-remote", "--profile", str(profile), "about:blank", seconds=LARGE_SECONDS)

    # Menus

    def open_menu(self, process, title, *submenus):
        """Opens a menu of the menu bar, and menus in it, and returns the innermost."""
        self.activate(process)
        tree = self.tree(process)
        bar = self.wait_for(lambda: menus.bar(tree), f"{process.name} shows a menu bar", LARGE_SECONDS)
        menu = self.row(bar, title)
        pointer.click(menu)
        for submenu in submenus:
            menu = self.row(menu, submenu)
            self.open_submenu(menu)
        return menu

    def open_submenu(self, row):
        """Opens the menu of a row with the pointer over it."""
        x, y = row.centre
        steps = itertools.cycle((0, 1))

        def is_open():
            # Some menus overlook the first motion, so that the pointer wanders a little, as in a person's hand.
            pointer.move_to(x + next(steps), y)
            return menus.is_open(row)

        self.wait_for(is_open, f"the menu {row.name!r} opens")

    def open_context_menu(self, process, node):
        """Opens the menu that belongs to what an accessible object shows."""
        self.activate(process)
        pointer.click(node, pointer.RIGHT)
        tree = self.tree(process)
        return self.wait_for(lambda: menus.context_menu(tree), f"{process.name} shows a context menu")

    def row(self, menu, title):
        """The row of that title in an open menu or in a menu bar, as soon as it is there."""
        return self.wait_for(lambda: menus.row(menu, title), f"{menu.name!r} shows {title!r}")

    def _started(self, *command, seconds=20):
        self._require(command[0])
        process = self.start(*command)
        self.wait_for(
            lambda: any(map(windows.is_shown, windows.of_process(process.pid))), f"{process.name} has a window", seconds
        )
        return process

    def _require(self, program):
        if shutil.which(program) is None:
            self.fail(f"{program} is not installed")
