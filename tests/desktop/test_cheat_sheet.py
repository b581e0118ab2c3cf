# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The essentials on one page: on the screen, in a file, and on paper."""

import re
import resource
import socket
import subprocess
import unittest

from desktop import keyboard, pointer, windows
from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase
from desktop.printing import MARGIN, PrintServer

# In the order of the catalog.
ESSENTIALS = (
    "Copy",
    "Paste",
    "Undo",
    "Save",
    "Emoji & Symbols",
    "Spotlight",
    "Switch App",
    "Close Window",
    "Force Quit",
    "Lock Mac",
    "New Folder",
    "Go to Folder",
    "Move to Trash",
    "Quick Look",
    "Capture Whole Screen",
    "Capture Selection",
    "Screenshot & Recording",
    "Reopen Closed Tab",
    "Home Folder",
    "Toggle the Dock",
    "Computer",
    "iCloud Drive",
    "Recents",
    "Minimize All Windows",
)

POINTS_TOLERANCE = 0.01


def pdf_info(path):
    """What a PDF file says of itself, and the size of its first page in points."""
    lines = subprocess.run(["pdfinfo", path], check=True, capture_output=True, text=True).stdout.splitlines()
    info = {key: value.strip() for key, _, value in (line.partition(":") for line in lines)}
    width, height = re.match(r"([\d.]+) x ([\d.]+) pts", info["Page size"]).groups()
    return info, float(width), float(height)


def words(path):
    """The words of a PDF file with their boxes: left, top, right, bottom in points, and the text."""
    text = subprocess.run(["pdftotext", "-bbox", path, "-"], check=True, capture_output=True, text=True).stdout
    pattern = r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>'
    return [(*map(float, match[:4]), match[4]) for match in re.findall(pattern, text)]


class CheatSheetTestCase(KeyvoraTestCase):
    def open_cheat_sheet(self, *starter, **environment):
        self.launch(*starter, **environment)
        self.click(self.row("Cheat Sheet"))
        self.see_page("Cheat Sheet Shortcuts")

    def open_export(self, size="A4"):
        if self.program is None:
            self.open_cheat_sheet()
        self.click(self.see(Role.PUSH_BUTTON, "Export Cheat Sheet…"))
        self.see(Role.HEADING, "Export Cheat Sheet")
        option = self.see(Role.RADIO_BUTTON, size)
        if not option.is_checked:
            self.switch_on(option)


class ScreenTest(CheatSheetTestCase):
    def test_shows_the_essentials(self):
        self.open_cheat_sheet()
        self.see(name="The most important shortcuts in one place")
        listed = self.see(Role.LIST, "Shortcuts")
        titles = [card.name for card in listed.children if card.role == Role.LIST_ITEM]
        self.assertEqual(list(ESSENTIALS), titles)

    def test_a4_is_chosen_at_first(self):
        self.open_export()
        self.assertTrue(self.see(Role.RADIO_BUTTON, "A4").is_checked)
        self.see(name="Preview: A4")

    def test_arrow_keys_choose(self):
        self.open_export()
        self.see_focus("A4")
        keyboard.press("Right")
        self.see(name="Preview: US Letter")
        self.see_focus("US Letter")
        keyboard.press("Left", "Left")
        self.see(name="Preview: Wallet")

    def test_cancel_and_escape_close_the_sheet(self):
        for close in (lambda: self.click(self.see(Role.PUSH_BUTTON, "Cancel")), lambda: self.keys("Escape")):
            self.open_export()
            close()
            self.see_gone(Role.HEADING, "Export Cheat Sheet")


class SaveTest(CheatSheetTestCase):
    def begin_saving(self, size):
        self.open_export(size)
        self.click(self.see(Role.PUSH_BUTTON, "Save PDF…"))
        self.see_gone(Role.HEADING, "Export Cheat Sheet")
        return self.window(self.program, "Save as PDF")

    def test_saves_each_size_under_its_name(self):
        sizes = {"Wallet": ("wallet", 243), "A4": ("a4", 595), "US Letter": ("usLetter", 612)}
        for size, (name, width) in sizes.items():
            with self.subTest(size):
                self.begin_saving(size)
                self.assertEqual(f"Keyvora-{name}.pdf", self.file_name().text)
                path = self.directory / f"{name}.pdf"
                self.enter_file_name(path)
                self.wait_for(path.exists, "the file is there")
                info, page_width, page_height = pdf_info(path)
                self.assertEqual("1", info["Pages"])
                self.assertAlmostEqual(width, page_width, delta=POINTS_TOLERANCE)
                if size == "Wallet":
                    self.assertAlmostEqual(153, page_height, delta=POINTS_TOLERANCE)

    def save_over(self, path):
        self.begin_saving("A4")
        self.enter_file_name(path)
        self.click(self.see(Role.PUSH_BUTTON, "Yes"))

    def test_replaces_a_file_as_a_whole(self):
        path = self.directory / "sheet.pdf"
        path.write_bytes(b"before")
        with path.open("rb") as before:
            self.save_over(path)
            self.wait_for(lambda: path.read_bytes().startswith(b"%PDF"), "the file is replaced")
            self.assertEqual(b"before", before.read())

    def test_a_write_that_fails_halfway_leaves_what_was_there(self):
        folder = self.directory / "folder"
        folder.mkdir()
        path = folder / "sheet.pdf"
        path.write_bytes(b"before")
        # Only then is too large a file an error and not the program's end.
        self.open_cheat_sheet("env", "--ignore-signal=XFSZ")
        resource.prlimit(self.program.pid, resource.RLIMIT_FSIZE, (4096, 4096))
        self.save_over(path)
        self.wait_for(lambda: len(windows.of_process(self.program.pid)) == 1, "the dialogs are gone")
        # It ends when all is written.
        self.program.terminate()
        self.assertEqual([path], list(folder.iterdir()))
        self.assertEqual(b"before", path.read_bytes())

    def test_offers_pdf_alone(self):
        self.begin_saving("A4")
        kinds = self.see(Role.COMBO_BOX, "PDF (*.pdf)")
        self.assertEqual(["PDF (*.pdf)"], [kind.name for kind in kinds.find_all(Role.LIST_ITEM, showing=False)])

    def test_the_window_waits_for_the_dialog(self):
        self.begin_saving("A4")
        self.file_name()
        pointer.click(self.row("Settings"))
        self.watch(lambda: self.screen.find(Role.HEADING, "Settings"), "the settings open")

    def test_quitting_closes_the_dialog(self):
        self.begin_saving("A4")
        self.file_name()
        self.assertEqual(0, self.program.terminate())

    def test_the_environment_sets_the_date(self):
        self.open_cheat_sheet(SOURCE_DATE_EPOCH="1700000000")
        self.begin_saving("A4")
        path = self.directory / "sheet.pdf"
        self.enter_file_name(path)
        self.wait_for(path.exists, "the file is there")
        self.assertIn(b"/CreationDate (D:20231114221320Z)", path.read_bytes())

    def test_adds_the_ending(self):
        self.begin_saving("A4")
        self.enter_file_name(self.directory / "sheet")
        self.wait_for((self.directory / "sheet.pdf").exists, "the file is there")

    def test_the_dialog_speaks_czech(self):
        self.defaults.write({"hasSeenOnboarding": True, "appLanguage": "cs"})
        self.launch()
        self.click(self.row("Samolepka"))
        self.click(self.see(Role.PUSH_BUTTON, "Exportovat tahák…"))
        self.click(self.see(Role.PUSH_BUTTON, "Uložit PDF…"))
        self.window(self.program, "Uložit jako PDF")
        self.see(Role.PUSH_BUTTON, "Uložit")

    def test_cancelling_writes_nothing(self):
        self.begin_saving("A4")
        self.file_name()
        keyboard.press("Escape")
        self.wait_until_active(self.program)
        self.see_page("Cheat Sheet Shortcuts")
        self.see(Role.PUSH_BUTTON, "Export Cheat Sheet…")
        self.assertEqual([], list(self.directory.rglob("*.pdf")))

    def test_a_failed_write_is_silent(self):
        self.begin_saving("A4")
        # Nobody can make a file there, whatever they may do elsewhere.
        self.enter_file_name("/sys/sheet.pdf")
        self.see(Role.PUSH_BUTTON, "Export Cheat Sheet…")
        self.wait_until_active(self.program)
        self.assertEqual([self.window(self.program, "Keyvora")], windows.of_process(self.program.pid))


class PrintTest(CheatSheetTestCase):
    """Looks at what comes out of a printer."""

    SHEET_WIDTH = 595
    CARD_WIDTH, CARD_HEIGHT = 243, 153

    def setUp(self):
        super().setUp()
        self.server = PrintServer(self)
        self._environment.update(self.server.environment)

    def print(self, size, width, height):
        """Prints onto paper of that size and returns the words on the one page that comes out."""
        paper = self.server.add_printer("paper", width, height)
        self.open_export(size)
        self.click(self.see(Role.PUSH_BUTTON, "Print…"))
        self.window(self.program, "Print")
        self.click(self.see(Role.PUSH_BUTTON, "Print"))
        printed = self.server.printed(paper)
        info, page_width, page_height = pdf_info(printed)
        self.assertEqual("1", info["Pages"])
        self.assertAlmostEqual(width, page_width, delta=1)
        self.assertAlmostEqual(height, page_height, delta=1)
        return words(printed)

    def test_a_server_that_goes_away_is_no_trouble(self):
        self.server.add_printer("paper", 595, 842)
        self.open_export("A4")
        self.click(self.see(Role.PUSH_BUTTON, "Print…"))
        self.window(self.program, "Print")
        self.server.process.terminate()
        self.click(self.see(Role.PUSH_BUTTON, "Print"))
        self.see_gone(Role.PUSH_BUTTON, "Print")
        self.open_export("Wallet")

    def test_a_server_that_never_answers_holds_nobody_up(self):
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(str(self.directory / "silent"))
            silent.listen()
            self._environment["CUPS_SERVER"] = str(self.directory / "silent")
            self.open_export("A4")
            self.click(self.see(Role.PUSH_BUTTON, "Print…"))
            self.see_gone(Role.HEADING, "Export Cheat Sheet")
            self.click(self.row("Practice"))
            self.see_page("Practice")
            self.watch(lambda: self.screen.find(Role.PUSH_BUTTON, "Print"), "the dialog opens", seconds=4)

    def test_a_card_keeps_its_size(self):
        printed = self.print("Wallet", 595, 842)
        left = min(word[0] for word in printed)
        right = max(word[2] for word in printed)
        padding = 11
        self.assertAlmostEqual((595 - self.CARD_WIDTH) / 2 + padding, left, delta=2)
        self.assertAlmostEqual((595 + self.CARD_WIDTH) / 2 - padding, right, delta=2)

    def test_a_sheet_is_made_smaller(self):
        printed = self.print("A4", 595, 842)
        left = min(word[0] for word in printed)
        right = max(word[2] for word in printed)
        scale = (595 - 2 * MARGIN) / self.SHEET_WIDTH
        padding = 28 * scale
        self.assertAlmostEqual(MARGIN + padding, left, delta=2)
        self.assertAlmostEqual(595 - MARGIN - padding, right, delta=2)

    def test_a_sheet_is_turned_on_wide_paper(self):
        printed = self.print("A4", 1000, 500)
        name = next(word for word in printed if word[4] == "Keyvora")
        self.assertGreater(name[3] - name[1], name[2] - name[0])


del CheatSheetTestCase

if __name__ == "__main__":
    unittest.main()
