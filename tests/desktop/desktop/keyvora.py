# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Keyvora on the screen: what it shows, by the names it is known by."""

import os
import re

from gi.repository import Gio, GLib

from . import keyboard, pointer, windows
from .accessibility import Role, State
from .defaults import Defaults
from .testcase import DesktopTestCase

BUS_NAME = "app.keyvora.Keyvora"
WINDOW_TITLE = "Keyvora"

# The rows of the sidebar from top to bottom, in English and in Czech.
SIDEBAR = (
    ("All Shortcuts", "Všechny zkratky"),
    ("Favorites", "Oblíbené"),
    ("Visual Keyboard", "Vizuální klávesnice"),
    ("Cheat Sheet", "Samolepka"),
    ("First Aid", "První pomoc"),
    ("Shortcut of the Day", "Dnešní zkratka"),
    ("Practice", "Procvičování"),
    ("Basics", "Základy"),
    ("Text", "Text"),
    ("Windows & Apps", "Okna a aplikace"),
    ("Finder", "Finder"),
    ("Screenshots", "Snímky obrazovky"),
    ("Browser", "Prohlížeč"),
    ("Pro Tools", "Profesionální nástroje"),
    ("Add Custom", "Přidat vlastní"),
    ("Settings", "Nastavení"),
)

ENGLISH, CZECH = 0, 1

ROW_ROLES = (Role.LIST_ITEM, Role.PAGE_TAB, Role.PUSH_BUTTON)
SWITCH_ROLES = (Role.CHECK_BOX, Role.TOGGLE_BUTTON)
FIELD_ROLES = (Role.TEXT, Role.ENTRY)

STAR = re.compile("^(?:Favorite|Oblíbená): (.*)$")


class KeyvoraTestCase(DesktopTestCase):
    """A test of the program, which starts each test with nothing stored but that it has greeted its user."""

    # The language of the environment.
    LANG = "C.UTF-8"

    def setUp(self):
        super().setUp()
        binary = os.environ["KEYVORA_BINARY"]
        self.binary = binary
        self.program = None
        self._allowed_output = []
        self._allowed_exit_codes = {0}
        self._starts = []
        self.defaults = Defaults(self._make_directories())
        self.defaults.write({"hasSeenOnboarding": True})

    # Starting and ending

    def start_program(self, *starter, **environment):
        """Starts the program without waiting for anything; variables may be added to its environment.

        `starter` is a command that turns into the program that it is given.
        """
        process = self.start(*starter, self.binary, environment={**self._environment, **environment})
        self._starts.append(process)
        return process

    def launch(self, *starter, **environment):
        """Starts the program, which must open its window and show something there; it is `self.program` from then on."""
        self.program = self.start_program(*starter, **environment)
        self.window(self.program, WINDOW_TITLE)
        self.wait_until_active(self.program)
        frame = self.see(Role.FRAME, WINDOW_TITLE)
        self.wait_for(lambda: any(child.is_showing for child in frame.children), "the window shows something")
        return self.program

    def launch_resting(self, **environment):
        """Starts the program, which must not open its window."""
        self.program = self.start_program(**environment)
        self.wait_for(is_resident, "the program is on the session bus")
        self.watch(lambda: windows.of_process(self.program.pid), "a window opens")
        return self.program

    def start_again(self, **environment):
        """Starts the program a second time and returns the exit code of that start."""
        return self.start_program(**environment).wait()

    def allow_output(self, pattern):
        """The program may write lines in which this is found."""
        self._allowed_output.append(re.compile(pattern))

    def allow_exit_code(self, code):
        """The program may end with that."""
        self._allowed_exit_codes.add(code)

    def complaints(self, process):
        if process not in self._starts:
            return []
        complaints = [
            f"unexpected output: {line}"
            for line in process.output.splitlines()
            if not any(allowed.search(line) for allowed in self._allowed_output)
        ]
        if process.exit_code not in self._allowed_exit_codes and not process.was_killed:
            complaints.append(f"the program ended with {process.exit_code}")
        return complaints

    # Seeing

    @property
    def screen(self):
        return self.tree(self.program)

    def see(self, role=None, name=None):
        """What shows under that role and name, as soon as it does."""
        screen = self.screen
        return self.wait_for(lambda: screen.find(role, name), f"{name!r} shows")

    def see_gone(self, role=None, name=None):
        """Waits until nothing of that role and name shows."""
        screen = self.screen
        self.wait_for(lambda: not screen.find(role, name), f"{name!r} is gone")

    def perform_action(self, name):
        """Does what the desktop's own key settings can ask for."""
        Gio.bus_get_sync(Gio.BusType.SESSION, None).call_sync(
            BUS_NAME,
            "/" + BUS_NAME.replace(".", "/"),
            "org.freedesktop.Application",
            "ActivateAction",
            GLib.Variant("(sava{sv})", (name, [], {})),
            None,
            Gio.DBusCallFlags.NONE,
            10000,
            None,
        )

    def row(self, name):
        """A row of the sidebar."""
        screen = self.screen

        def row():
            return next((node for node in screen.find_all(ROW_ROLES, name) if not _star_in(node)), None)

        return self.wait_for(row, f"the sidebar has {name!r}")

    def pill(self, token):
        """The switch for a modifier key."""
        return self.see(SWITCH_ROLES, re.compile(f"^{re.escape(token)} "))

    @property
    def search_field(self):
        return self.see(FIELD_ROLES, re.compile("^(Search|Hledat)$"))

    def card(self, title):
        """The card of a shortcut."""
        screen = self.screen

        def card():
            return next((node for node in screen.find_all(Role.LIST_ITEM, title) if _star_in(node)), None)

        return self.wait_for(card, f"there is a card {title!r}")

    def star(self, title):
        """The switch that makes a shortcut a favourite."""
        return self.see(SWITCH_ROLES, re.compile(f"^(Favorite|Oblíbená): {re.escape(title)}$"))

    @property
    def shown_cards(self):
        """The titles of the cards that show, as they are read."""
        stars = []
        for node in self.screen.find_all(SWITCH_ROLES, STAR):
            match, extents = STAR.match(node.name), node.extents
            # It may be gone by now.
            if match and extents:
                # A card under the pointer is a little larger, so its row is told by the tens.
                stars.append((round(extents.y, -1), extents.x, match[1]))
        return [title for _, _, title in sorted(stars)]

    def see_cards(self, *titles):
        """Waits until exactly these cards show, in this order."""
        seen = []

        def they_show():
            seen[:] = self.shown_cards
            return seen == list(titles)

        try:
            self.wait_for(they_show, f"exactly the cards {titles}")
        except AssertionError as error:
            raise AssertionError(f"cards {seen}; {error}") from None

    def see_page(self, title):
        """Waits until the page of that title shows."""
        return self.see(Role.HEADING, title)

    @property
    def focused(self):
        """What has the keyboard within the program: the innermost that says so. Nothing when nothing does."""
        focused = None
        for node in self.screen.walk():
            if node.is_focused and node.role != Role.FRAME:
                focused = node
        return focused

    def see_focus(self, name):
        """Waits until what has that name has the keyboard."""

        def has_focus():
            focused = self.focused
            return focused if focused and focused.name == name else None

        return self.wait_for(has_focus, f"{name!r} has the keyboard")

    # Operating

    def click(self, node):
        self.wait_until_active(self.program)
        pointer.click(node)

    def keys(self, *keys):
        self.press(self.program, *keys)

    def type(self, text):
        self.wait_until_active(self.program)
        keyboard.type_text(text)

    def search(self, text):
        """Searches for a text that is on the keyboard."""
        self.keys("ctrl+f")
        field = self.search_field
        self.wait_for(lambda: field.has(State.FOCUSED), "the search field has the keyboard")
        self.type(text)
        self.wait_for(lambda: field.text == text, f"the search field holds {text!r}")

    def switch_on(self, switch):
        """Clicks a switch and waits until it is on."""
        self.click(switch)
        self.wait_for(lambda: switch.is_checked, f"{switch.name!r} is on")

    def switch_off(self, switch):
        self.click(switch)
        self.wait_for(lambda: not switch.is_checked, f"{switch.name!r} is off")

    def file_name(self):
        """The field for the name in a file dialog, which gives it the keyboard."""
        return self.wait_for(
            lambda: next((node for node in self.screen.find_all(Role.TEXT) if node.has(State.FOCUSED)), None),
            "the dialog asks for a name",
        )

    def enter_file_name(self, path):
        """Ends a file dialog with that file."""
        field = self.file_name()
        keyboard.press("ctrl+a")
        keyboard.type_text(str(path))
        self.wait_for(lambda: field.text == str(path), "the name is in the field")
        keyboard.press("Return")

    def wait_for_stored(self, **values):
        """Waits until the stored defaults hold these values."""

        def are_stored():
            stored = self.defaults.read()
            return all(stored.get(key) == value for key, value in values.items())

        self.wait_for(are_stored, f"stored: {values}")

    # Preparing

    def _make_directories(self):
        """Makes the program's own directories and environment; returns the one for its configuration."""
        names = {"XDG_CONFIG_HOME": "config", "XDG_DATA_HOME": "data", "XDG_STATE_HOME": "state"}
        places = {variable: self.directory / name for variable, name in names.items()}
        for place in places.values():
            place.mkdir(mode=0o700)
        config = places["XDG_CONFIG_HOME"]
        # The desktop's fonts hold for all its programs.
        (config / "fontconfig").symlink_to(os.path.join(os.environ["XDG_CONFIG_HOME"], "fontconfig"))
        inherited = {
            name: value for name, value in os.environ.items() if name != "LANGUAGE" and not name.startswith("LC_")
        }
        self._environment = {
            **inherited,
            "LANG": self.LANG,
            **{variable: str(place) for variable, place in places.items()},
        }
        return config


def is_resident():
    """Whether the program runs and can be reached by a second start."""
    reply = Gio.bus_get_sync(Gio.BusType.SESSION, None).call_sync(
        "org.freedesktop.DBus",
        "/org/freedesktop/DBus",
        "org.freedesktop.DBus",
        "NameHasOwner",
        GLib.Variant("(s)", (BUS_NAME,)),
        None,
        Gio.DBusCallFlags.NONE,
        1000,
        None,
    )
    return reply.unpack()[0]


def _star_in(node):
    return next(node.find_all(SWITCH_ROLES, STAR, showing=False), None)
