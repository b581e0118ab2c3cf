# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Commands chosen with the pointer are counted and answered with their shortcut."""

import contextlib
import unittest

from desktop import keyboard, menus, pointer, windows
from desktop.accessibility import Role
from desktop.appearances import Appearances
from desktop.applications import Applications
from desktop.keyvora import WINDOW_TITLE, KeyvoraTestCase

SCREEN_WIDTH = 1280
MARGIN = 22
NOTICE_WIDTH = 340


def shortcut(app, title, *keys):
    """A shortcut as an import stores it."""
    return {
        "id": f"menu-{app}-{title}-{''.join(keys)}",
        "title": title,
        "keys": list(keys),
        "category": "Základy",
        "apps": [app],
        "detail": f"Imported from {app}'s menu.",
    }


TRANSPOSE = shortcut("Mousepad", "Transpose", "⌃", "T")
TABS_TO_SPACES = shortcut("Mousepad", "Tabs to Spaces", "⌃", "1")


class SuggestionsTestCase(Applications, KeyvoraTestCase):
    def start_with(self, *shortcuts, **settings):
        """The program resting in the background, with these own shortcuts and settings stored."""
        self.defaults.write(
            {"hasSeenOnboarding": True, "hasLaunchedBefore": True, "customShortcuts": list(shortcuts), **settings}
        )
        self.launch_resting()

    def counts(self):
        return self.defaults.read().get("usageCounts", {})

    def see_counts(self, counts):
        self.wait_for(lambda: self.counts() == counts, f"the counts are {counts}", 20)

    @contextlib.contextmanager
    def pressed(self, process, *path):
        """Holds the button down on a row of a menu; it was chosen when the context ends."""
        menu = self.open_menu(process, *path[:-1])
        with pointer.held_at(*self.row(menu, path[-1]).centre):
            yield
        self.wait_for(lambda: not menus.row(menu, path[-1]), "the menu is closed")

    def use(self, mousepad, command, count):
        """Chooses one of the commands above, and waits until it was counted for that many times."""
        with self.pressed(mousepad, "Edit", "Convert", command["title"]):
            self.wait_for(lambda: self.counts().get(command["id"]) == count, f"it was counted {count} times")

    def see_notice(self):
        return self.see(Role.ALERT, "Transpose: Control T")


class ToolkitsTest(SuggestionsTestCase):
    """A row under the pointer is recognised in applications of every common toolkit."""

    def check(self, process, *path):
        known = shortcut("Anything", path[-1], "⌃", "1")
        self.start_with(known)
        with self.pressed(process, *path):
            self.see_counts({known["id"]: 1})

    def test_gtk_3(self):
        self.check(self.start_mousepad(), "Edit", "Increase Indent")

    def test_gtk_3_submenu(self):
        self.check(self.start_mousepad(), "Edit", "Convert", "Transpose")

    def test_gtk_3_submenu_of_a_submenu(self):
        self.check(self.start_mousepad(), "Document", "Filetype", "Markup", "AsciiDoc")

    def test_gtk_3_context_menu(self):
        mousepad = self.start_mousepad()
        self.start_with(TRANSPOSE)
        text = self.wait_for(lambda: self.tree(mousepad).find(Role.TEXT), "the text shows")
        menu = self.open_context_menu(mousepad, text)
        convert = self.row(menu, "Convert")
        self.open_submenu(convert)
        with pointer.held_at(*self.row(convert, "Transpose").centre):
            self.see_counts({TRANSPOSE["id"]: 1})

    def test_qt_5(self):
        self.check(self.start_featherpad(), "Options", "Wrap Lines")

    def test_qt_5_submenu_of_a_submenu(self):
        self.check(self.start_featherpad(), "Options", "Encoding", "Unicode", "UTF-16")

    def test_qt_6(self):
        self.check(self.start_assistant(), "Go", "Sync with Table of Contents")

    def test_qt_6_submenu(self):
        self.check(self.start_assistant(), "View", "Toolbars", "Filter Toolbar")

    def test_libreoffice(self):
        self.check(self.start_writer(), "View", "Formatting Marks")

    def test_libreoffice_submenu(self):
        self.check(self.start_writer(), "Format", "Text", "Superscript")

    def test_firefox(self):
        firefox = self.start_firefox()
        known = shortcut("Anything", "Work Offline", "⌃", "1")
        self.start_with(known)
        self.activate(firefox)
        self.press(firefox, "alt+f")
        tree = self.tree(firefox)
        bar = self.wait_for(lambda: menus.bar(tree), "the menu bar shows")
        with pointer.held_at(*self.row(self.row(bar, "File"), "Work Offline").centre):
            self.see_counts({known["id"]: 1})


class CountingTest(SuggestionsTestCase):
    def test_suggests_at_the_second_use(self):
        mousepad = self.start_mousepad()
        self.start_with(TRANSPOSE)
        appearances = Appearances(self)
        self.use(mousepad, TRANSPOSE, count=1)
        self.watch(lambda: appearances.of_process(self.program), "a notice shows")
        self.use(mousepad, TRANSPOSE, count=2)
        notice = self.see_notice()
        self.assertEqual(
            "You used “Transpose” with the mouse. Try the faster keyboard shortcut next time.", notice.description
        )
        self.assertEqual({TRANSPOSE["id"]: 2}, self.counts())

    def test_counts_go_on_from_what_was_stored(self):
        mousepad = self.start_mousepad()
        self.start_with(TRANSPOSE, usageCounts={TRANSPOSE["id"]: 6, "copy": 2})
        self.use(mousepad, TRANSPOSE, count=7)
        self.see_notice()
        self.assertEqual({TRANSPOSE["id"]: 7, "copy": 2}, self.counts())

    def test_the_overlay_lists_first_what_was_used(self):
        mousepad = self.start_mousepad()
        others = [shortcut("Mousepad", f"Other {letter}", "⌃", letter) for letter in "ABCDE"]
        self.start_with(*others, TRANSPOSE)
        self.activate(mousepad)
        self.assertEqual(["Other A", "Other B", "Other C", "Other D"], self.overlay_rows())
        self.use(mousepad, TRANSPOSE, count=1)
        self.assertEqual(["Transpose", "Other A", "Other B", "Other C"], self.overlay_rows())

    def overlay_rows(self):
        """Shows the overlay for as long as it takes to read its rows, from top to bottom."""
        with keyboard.held("Control_L", "Alt_L"):
            overlay = self.see(Role.PANEL, "Shortcut overlay")
            rows = {node.name: node.extents.y for node in overlay.find_all(Role.LIST_ITEM)}
        self.see_gone(Role.PANEL, "Shortcut overlay")
        return sorted(rows, key=rows.get)

    def test_the_title_of_a_menu_is_no_command(self):
        mousepad = self.start_mousepad()
        self.start_with(shortcut("Mousepad", "Edit", "⌃", "E"), shortcut("Mousepad", "Convert", "⌃", "K"), TRANSPOSE)
        menu = self.open_menu(mousepad, "Edit")
        convert = self.row(menu, "Convert")
        pointer.click(convert)
        with pointer.held_at(*self.row(convert, "Transpose").centre):
            self.see_counts({TRANSPOSE["id"]: 1})
        self.watch(lambda: len(self.counts()) > 1, "a title was counted")

    def test_nothing_is_counted_when_suggestions_are_off(self):
        mousepad = self.start_mousepad()
        self.start_with(TRANSPOSE, smartSuggestions=False, learningMode=True)
        appearances = Appearances(self)
        with self.pressed(mousepad, "Edit", "Convert", "Transpose"):
            self.watch(self.counts, "it was counted")
        self.assertEqual([], appearances.of_process(self.program))

    def test_the_programs_own_menus_do_not_count(self):
        select_all = shortcut("Mousepad", "Select All", "⌃", "A")
        self.defaults.write({"hasSeenOnboarding": True, "customShortcuts": [select_all], "learningMode": True})
        self.launch()
        appearances = Appearances(self)
        self.keys("ctrl+f")
        self.type("a")
        self.click(self.see((Role.MENU, Role.MENU_ITEM), "Edit"))
        with pointer.held_at(*self.see(Role.MENU_ITEM, "Select All").centre):
            self.watch(self.counts, "it was counted")
        self.watch(self.counts, "it was counted")
        self.assertEqual([], appearances.of_process(self.program))


class NoticeTest(SuggestionsTestCase):
    """What shows of a suggestion; in the learning mode, which suggests at once."""

    def notice_after_use(self):
        """Uses a command for the first time; returns the application, and the notice and its window."""
        mousepad = self.start_mousepad()
        self.start_with(TRANSPOSE, TABS_TO_SPACES, learningMode=True)
        appearances = Appearances(self)
        self.use(mousepad, TRANSPOSE, count=1)
        notice = self.see_notice()
        [window] = appearances.of_process(self.program)
        return mousepad, notice, window

    def test_lies_in_the_corner_and_leaves_the_keyboard_where_it_is(self):
        mousepad, _, window = self.notice_after_use()
        place = windows.frame_free_geometry(window)
        self.assertEqual((SCREEN_WIDTH - MARGIN - NOTICE_WIDTH, MARGIN, NOTICE_WIDTH), place[:3])
        text = self.tree(mousepad).find(Role.TEXT)
        self.press(mousepad, "a")
        self.wait_for(lambda: text.text == "a", "what is typed arrives where it should")

    def test_goes_by_itself_after_a_while(self):
        _, notice, window = self.notice_after_use()
        self.watch(lambda: not windows.is_shown(window), "the notice is gone", seconds=3)
        self.wait_for(lambda: not windows.is_shown(window), "the notice is gone")
        self.assertFalse(notice.is_showing)

    def test_stays_while_the_pointer_rests_on_it(self):
        mousepad, notice, window = self.notice_after_use()
        pointer.move_to(*notice.centre)
        self.watch(lambda: not windows.is_shown(window), "the notice is gone", seconds=7)
        pointer.move_to(*self.window_centre(mousepad))
        self.wait_for(lambda: not windows.is_shown(window), "the notice is gone")

    def window_centre(self, process):
        x, y, width, height = windows.frame_free_geometry(self.window(process))
        return x + width // 2, y + height // 2

    def test_a_click_opens_the_library_at_the_shortcut(self):
        _, notice, window = self.notice_after_use()
        pointer.click(notice)
        self.wait_until_active(self.program)
        self.assertEqual(WINDOW_TITLE, windows.title(windows.active()))
        # Its place is at the end of a long list.
        self.see_focus("Transpose")
        self.assertTrue(self.card("Transpose").is_showing)
        self.wait_for(lambda: not windows.is_shown(window), "the notice is gone")

    def test_the_next_suggestion_takes_its_place(self):
        mousepad, _, window = self.notice_after_use()
        self.use(mousepad, TABS_TO_SPACES, count=1)
        self.see(Role.ALERT, "Tabs to Spaces: Control 1")
        self.assertTrue(windows.is_shown(window))
        self.see_gone(Role.ALERT, "Transpose: Control T")


class CzechNoticeTest(SuggestionsTestCase):
    LANG = "cs_CZ.UTF-8"

    def test_speaks_czech(self):
        mousepad = self.start_mousepad()
        self.start_with(TRANSPOSE, learningMode=True)
        self.use(mousepad, TRANSPOSE, count=1)
        self.assertEqual(
            "Položku „Transpose“ jste použili myší. Příště to zkuste rychleji klávesami.", self.see_notice().description
        )


del SuggestionsTestCase

if __name__ == "__main__":
    unittest.main()
