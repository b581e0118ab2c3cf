# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The means of the other tests, tried on programs that are known to work."""

import os
import pathlib
import re
import signal
import subprocess
import unittest
import unittest.mock
import uuid

from desktop import accessibility, artifacts, keyboard, memory, menus, pointer, screenshot, waiting, windows
from desktop.accessibility import Role, State
from desktop.appearances import Appearances
from desktop.applications import Applications
from desktop.defaults import Defaults
from desktop.keyvora import KeyvoraTestCase
from desktop.testcase import DesktopTestCase

# For a desktop to come and go, also on a machine that is busy.
PATIENCE_SECONDS = 60
VIRTUAL_DESKTOP = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "virtual-desktop"


class ProgramsTest(DesktopTestCase):
    """Looking at programs and operating them."""

    def start_mousepad(self):
        return self.start("mousepad", "--disable-server")

    def test_finds_a_menu_by_its_role_and_name(self):
        mousepad = self.start_mousepad()
        tree = self.tree(mousepad)
        menu = self.wait_for(lambda: tree.find(Role.MENU, "File"), "the menu File shows")
        self.assertTrue(menu.is_showing)
        self.assertGreater(menu.extents.width, 0)

    def test_a_click_opens_a_menu_and_escape_closes_it(self):
        mousepad = self.start_mousepad()
        tree = self.tree(mousepad)
        self.wait_until_active(mousepad)
        pointer.click(self.wait_for(lambda: tree.find(Role.MENU, "File"), "the menu File shows"))
        self.wait_for(lambda: tree.find(Role.MENU_ITEM, re.compile("^New")), "the menu's items show")
        keyboard.press("Escape", "Escape")
        self.wait_for(lambda: not tree.find(Role.MENU_ITEM, re.compile("^New")), "the menu is closed")

    def test_typing_changes_the_title(self):
        mousepad = self.start_mousepad()
        window = self.window(mousepad)
        self.assertFalse(windows.title(window).startswith("*"))
        tree = self.tree(mousepad)
        self.wait_for(lambda: any(node.is_focused for node in tree.find_all(Role.TEXT)), "the text has the keyboard")
        self.press(mousepad, "a")
        self.wait_for(lambda: windows.title(window).startswith("*"), "the title says that the text was changed")

    def test_types_what_is_on_another_keyboard_layout(self):
        mousepad = self.start_mousepad()
        tree = self.tree(mousepad)
        text = self.wait_for(lambda: tree.find(Role.TEXT), "the text shows")
        self.wait_until_active(mousepad)
        with keyboard.layout("cz"):
            keyboard.type_text("kopír žluté")
            self.wait_for(lambda: text.text == "kopír žluté", f"the text is there: {text.text!r}")

    def test_tells_which_program_has_the_keyboard(self):
        mousepad = self.start_mousepad()
        galculator = self.start("galculator")
        for process in (mousepad, galculator, mousepad):
            self.activate(process)
            self.assertEqual(self.window(process), windows.active())

    def test_tells_a_minimized_window_from_a_shown_one(self):
        galculator = self.start("galculator")
        window = self.window(galculator)
        subprocess.run(["xdotool", "windowminimize", str(window)], check=True)
        self.wait_for(lambda: windows.is_minimized(window), "the window is minimized")
        self.assertFalse(windows.is_shown(window))

    def test_moves_and_resizes_a_window(self):
        mousepad = self.start_mousepad()
        window = self.window(mousepad)
        windows.resize(window, 500, 400)
        self.wait_for(lambda: windows.frame_free_geometry(window)[2:] == (500, 400), "the size is the new one")
        before = windows.frame_free_geometry(window)
        windows.move(window, before.x + 100, before.y + 60)
        self.wait_for(lambda: windows.frame_free_geometry(window) != before, "the place is another")

    def test_a_window_that_is_gone_has_no_facts(self):
        galculator = self.start("galculator")
        window = self.window(galculator)
        galculator.kill()
        self.wait_for(lambda: window not in windows.all_windows(), "the window is gone")
        self.assertIsNone(windows.title(window))
        self.assertIsNone(windows.frame_free_geometry(window))
        self.assertIsNone(windows.pid_of(window))
        self.assertFalse(windows.is_shown(window))

    def test_an_accessible_object_that_is_gone_has_no_name(self):
        galculator = self.start("galculator")
        tree = self.tree(galculator)
        galculator.kill()
        self.wait_for(lambda: accessibility.application(galculator.pid) is None, "the program is gone")
        self.assertEqual("", tree.name)
        self.assertFalse(tree.has(State.SHOWING))
        self.assertEqual([], list(tree.children))

    def test_a_program_that_hangs_does_not_hold_up_the_test(self):
        galculator = self.start("galculator")
        self.tree(galculator)
        os.kill(galculator.pid, signal.SIGSTOP)
        self.addCleanup(os.kill, galculator.pid, signal.SIGCONT)
        with self.assertRaises(waiting.TimedOut):
            waiting.wait_for(lambda: accessibility.application(galculator.pid).find(Role.MENU, "Edit"), "a menu", 1)

    def test_takes_a_picture_of_the_screen(self):
        picture = self.directory / "screen.png"
        screenshot.save(picture)
        self.assertEqual(b"\x89PNG", picture.read_bytes()[:4])


class MenusTest(Applications, DesktopTestCase):
    """Menus, and what else comes up without the window manager."""

    def test_a_row_is_there_while_its_menu_is_open(self):
        mousepad = self.start_mousepad()
        menu = self.open_menu(mousepad, "Edit", "Convert")
        self.assertEqual("Transpose", self.row(menu, "Transpose").name.strip())
        keyboard.press("Escape", "Escape")
        self.wait_for(lambda: not menus.row(menu, "Transpose"), "the menu is closed")
        self.assertFalse(menus.is_open(menu))

    def test_a_menu_that_was_open_for_a_moment_is_recorded(self):
        mousepad, galculator = self.start_mousepad(), self.start_galculator()
        appearances = Appearances(self)
        self.assertEqual([], appearances.of_process(mousepad))
        menu = self.open_menu(mousepad, "Edit")
        self.row(menu, "Undo")
        keyboard.press("Escape")
        self.wait_for(lambda: not menus.is_open(menu), "the menu is closed")
        self.assertEqual(1, len(appearances.of_process(mousepad)))
        self.assertEqual([], appearances.of_process(galculator))


class MemoryTest(DesktopTestCase):
    def test_finds_a_text_that_a_program_holds_and_no_other(self):
        text, other = uuid.uuid4().hex, uuid.uuid4().hex
        command = "import sys; text = sys.stdin.readline(); print(flush=True); sys.stdin.read()"
        with subprocess.Popen(
            ["/usr/bin/python3", "-c", command], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        ) as program:
            print(text, file=program.stdin, flush=True)
            self.assertEqual("\n", program.stdout.readline())
            self.assertTrue(memory.holds(program.pid, text))
            self.assertFalse(memory.holds(program.pid, other))


class FailureTest(DesktopTestCase):
    """What becomes of tests that fail."""

    def outcome_of(self, test_body, **methods):
        """Runs a test of its own with that body; its remains go to this test's directory."""
        case = type("Inner", (DesktopTestCase,), {"runTest": test_body, **methods})()
        os.environ["KEYVORA_ARTIFACTS"] = str(self.directory)
        self.addCleanup(os.environ.pop, "KEYVORA_ARTIFACTS", None)
        result = unittest.TestResult()
        case.run(result)
        return case, result

    def test_keeps_the_screen_the_tree_and_the_output(self):
        def body(case):
            talker = case.start("bash", "-c", "echo words; exec galculator")
            case.tree(talker)
            case.window(talker)
            case.fail("on purpose")

        case, result = self.outcome_of(body)
        self.assertEqual(1, len(result.failures), result)
        place = artifacts.directory(case.id())
        self.assertEqual(b"\x89PNG", (place / "screen.png").read_bytes()[:4])
        self.assertIn("menu bar", (place / "accessible-tree.txt").read_text())
        self.assertIn("words", "".join(log.read_text() for log in place.glob("*.log")))

    def test_keeps_nothing_of_a_test_that_passes(self):
        case, result = self.outcome_of(lambda case: None)
        self.assertTrue(result.wasSuccessful())
        self.assertFalse(artifacts.directory(case.id()).exists())

    def test_tells_what_was_awaited_and_what_was_there(self):
        galculator = self.start("galculator")
        self.window(galculator)
        self.tree(galculator)
        with self.assertRaisesRegex(waiting.TimedOut, r"(?s)not within 0 s: a miracle.*frame"):
            self.wait_for(lambda: False, "a miracle", seconds=0)

    def test_a_program_that_ends_by_itself_fails_the_test(self):
        def body(case):
            process = case.start("bash", "-c", "exit 3")
            case.wait_for(lambda: not process.is_running, "it has ended")

        _, result = self.outcome_of(body)
        self.assertIn("ended by itself with 3", str(result.failures))

    def test_a_program_that_does_not_end_when_told_is_killed(self):
        process = self.start("bash", "-c", "trap '' TERM; echo ready; while :; do read -rt 100 <> <(:); done")
        self.wait_for(lambda: process.output, "it runs")
        with self.assertRaisesRegex(AssertionError, "still runs after 0.2 s"):
            process.terminate(seconds=0.2)
        process.kill()
        self.assertFalse(process.is_running)

    def test_complaints_fail_the_test(self):
        _, result = self.outcome_of(
            lambda case: case.start("galculator").kill(), complaints=lambda case, process: ["it talks"]
        )
        self.assertIn("it talks", str(result.failures))


class OutputTest(DesktopTestCase):
    """What the program writes to its output fails its tests."""

    def outcome_of(self, script, allowed=None):
        """Runs a test that starts a program that is a shell script."""
        binary = self.directory / "program"
        binary.write_text(f"#!/bin/sh\n{script}\n")
        binary.chmod(0o755)

        def body(case):
            if allowed:
                case.allow_output(allowed)
            case.start_again()

        environment = {"KEYVORA_BINARY": str(binary), "KEYVORA_ARTIFACTS": str(self.directory)}
        result = unittest.TestResult()
        with unittest.mock.patch.dict(os.environ, environment):
            type("Inner", (KeyvoraTestCase,), {"runTest": body})().run(result)
        return result

    def test_silence_passes(self):
        self.assertTrue(self.outcome_of("exit 0").wasSuccessful())

    def test_a_warning_fails(self):
        for channel in ("1", "2"):
            result = self.outcome_of(f"echo 'Main.qml:7: TypeError' >&{channel}")
            self.assertIn("unexpected output: Main.qml:7: TypeError", str(result.failures))

    def test_an_allowed_line_passes_and_no_other(self):
        script = "echo allowed words; echo other words"
        result = self.outcome_of(script, allowed="^allowed")
        self.assertIn("other words", str(result.failures))
        self.assertNotIn("allowed words", str(result.failures))

    def test_a_failing_exit_code_fails(self):
        self.assertIn("the program ended with 3", str(self.outcome_of("exit 3").failures))

    def test_has_directories_and_a_language_of_its_own(self):
        script = '[ "$LANG$LANGUAGE$LC_ALL" = C.UTF-8 ] && [ "${XDG_CONFIG_HOME#*/home/test-}" != "$XDG_CONFIG_HOME" ]'
        with unittest.mock.patch.dict(os.environ, {"LC_ALL": "C", "LANGUAGE": "de"}):
            self.assertTrue(self.outcome_of(script).wasSuccessful())


class DefaultsTest(DesktopTestCase):
    def test_reads_what_was_written(self):
        defaults = Defaults(self.directory)
        self.assertEqual({}, defaults.read())
        defaults.write({"appLanguage": "cs"})
        self.assertEqual({"appLanguage": "cs"}, defaults.read())

    def test_fails_when_the_file_is_not_whole(self):
        defaults = Defaults(self.directory)
        defaults.write({})
        for broken in ('{"appLanguage": ', "[]", ""):
            defaults.path.write_text(broken)
            with self.subTest(broken), self.assertRaises((AssertionError, ValueError)):
                defaults.read()


class VirtualDesktopTest(unittest.TestCase):
    """The desktop itself, one started inside the other."""

    @staticmethod
    def on_desktop(command, *options, environment=None):
        """What a shell command says and how it ends on a new desktop."""
        return subprocess.run(
            [VIRTUAL_DESKTOP, *options, "bash", "-c", command],
            env={**os.environ, **(environment or {})},
            capture_output=True,
            text=True,
            check=False,
            timeout=PATIENCE_SECONDS,
        )

    def status_of(self, desktop):
        """How a desktop ends; one that does not is killed, for nobody else would end it."""
        try:
            return desktop.wait(PATIENCE_SECONDS)
        except subprocess.TimeoutExpired:
            desktop.kill()
            raise

    def test_passes_output_input_and_status_on(self):
        outcome = self.on_desktop("echo out; echo err >&2; exit 7")
        self.assertEqual(("out\n", "err\n", 7), (outcome.stdout, outcome.stderr, outcome.returncode))
        echo = subprocess.run([VIRTUAL_DESKTOP, "cat"], input="in", capture_output=True, text=True, check=True)
        self.assertEqual("in", echo.stdout)

    def test_tells_misuse(self):
        for arguments in ([], ["--size"], ["--size", "big", "true"], ["--size", "640x480"]):
            with self.subTest(arguments):
                outcome = subprocess.run([VIRTUAL_DESKTOP, *arguments], capture_output=True, check=False)
                self.assertEqual(125, outcome.returncode)
                self.assertIn(b"usage", outcome.stderr)

    def test_has_the_size_that_was_asked_for(self):
        outcome = self.on_desktop("xwininfo -root | grep geometry", "--size", "800x600")
        self.assertIn("800x600+0+0", outcome.stdout)

    def test_shares_no_variable_of_the_session_with_its_caller(self):
        caller = {
            "XDG_ACTIVATION_TOKEN": "caller",
            "DESKTOP_STARTUP_ID": "caller",
            "XDG_CURRENT_DESKTOP": "caller",
            "WAYLAND_DISPLAY": "caller",
            "DBUS_SYSTEM_BUS_ADDRESS": "caller",
            "NO_AT_BRIDGE": "caller",
        }
        shared = ("HOME", "DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME")
        outcome = self.on_desktop("env", environment=caller)
        inside = dict(line.split("=", 1) for line in outcome.stdout.splitlines() if "=" in line)
        for name in caller:
            self.assertNotIn(name, inside)
        for name in shared:
            self.assertNotEqual(os.environ.get(name), inside[name], name)

    def test_nothing_is_left_when_the_command_ends(self):
        outcome = self.on_desktop(
            "setsid -f sleep 1000; echo $VIRTUAL_DESKTOP | cut -d: -f1; stat -c %a ${VIRTUAL_DESKTOP%%:*}"
        )
        place, mode = outcome.stdout.split()
        self.assertEqual("700", mode)
        self.assertFalse(os.path.exists(place))
        self.assertEqual([], processes_of(place))

    def test_nothing_is_left_when_it_is_told_to_end(self):
        command = "setsid -f sleep 1000; echo ${VIRTUAL_DESKTOP%%:*}; exec sleep 1000"
        for told in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(told), subprocess.Popen(
                [VIRTUAL_DESKTOP, "bash", "-c", command], stdout=subprocess.PIPE, text=True
            ) as desktop:
                place = desktop.stdout.readline().strip()
                desktop.send_signal(told)
                self.assertEqual(128 + told, self.status_of(desktop))
                self.assertFalse(os.path.exists(place))
                self.assertEqual([], processes_of(place))

    def test_several_run_at_the_same_time(self):
        desktops = [
            subprocess.Popen(
                [VIRTUAL_DESKTOP, "bash", "-c", "echo $DISPLAY; read -r"],
                stdin=subprocess.PIPE,
                stdout=subprocess.PIPE,
                text=True,
            )
            for _ in range(3)
        ]
        displays = {desktop.stdout.readline() for desktop in desktops}
        for desktop in desktops:
            desktop.communicate("\n")
            self.assertEqual(0, desktop.returncode)
        self.assertEqual(3, len(displays))

    def test_the_interface_font_is_inter(self):
        self.assertTrue(self.on_desktop("fc-match sans-serif").stdout.startswith("Inter"))


def processes_of(place):
    """The processes that were started on the desktop whose directory was `place`."""
    pids = []
    for environment in pathlib.Path("/proc").glob("[0-9]*/environ"):
        try:
            if place.encode() in environment.read_bytes():
                pids.append(int(environment.parent.name))
        except OSError:
            continue
    return pids


if __name__ == "__main__":
    unittest.main()
