# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The base of all tests that run on the virtual desktop."""

import os
import pathlib
import shutil
import tempfile
import unittest

from . import accessibility, artifacts, keyboard, waiting, windows
from .processes import Process


class DesktopTestCase(unittest.TestCase):
    """A test with programs of its own. They are ended after it, and it is kept on record why it failed."""

    def setUp(self):
        if "VIRTUAL_DESKTOP" not in os.environ:
            self.fail("needs a virtual desktop: tests/desktop/run")
        self._processes = []
        # One place per test for everything that is stored.
        self.directory = pathlib.Path(tempfile.mkdtemp(prefix="test-", dir=os.environ["HOME"]))
        self.addCleanup(shutil.rmtree, self.directory)
        self.addCleanup(self._end)

    def run(self, result=None):
        self._result = result
        self._trouble_before = self._trouble()
        return super().run(result)

    # Programs

    def start(self, *command, environment=None):
        """Starts a program, in the desktop's environment if nothing else is said."""
        log = self.directory / f"{len(self._processes)}.log"
        process = Process(command, dict(os.environ if environment is None else environment), log)
        self._processes.append(process)
        return process

    def tree(self, process):
        """The program's accessible tree, as soon as there is one."""
        return self.wait_for(lambda: accessibility.application(process.pid), f"{process.name} is accessible")

    def window(self, process, title=None):
        """The program's window on the screen, as soon as there is one; of that title if one is given."""

        def shown_window():
            for window in windows.of_process(process.pid):
                if windows.is_shown(window) and (title is None or windows.title(window) == title):
                    return window
            return None

        return self.wait_for(shown_window, f"{process.name} has a window {title or ''}".rstrip())

    def activate(self, process):
        """Hands the keyboard to the program's window."""
        windows.activate(self.window(process))
        self.wait_until_active(process)

    # Waiting

    def wait_for(self, condition, what, seconds=waiting.DEADLINE_SECONDS):
        """Waits until the condition is truthy and returns it; fails with the accessible trees."""
        return waiting.wait_for(condition, what, seconds, self.describe_applications)

    def watch(self, condition, what, seconds=1):
        """Fails when the condition becomes truthy within that time."""
        waiting.watch(condition, what, seconds, self.describe_applications)

    def wait_until_active(self, process):
        self.wait_for(lambda: windows.active_pid() == process.pid, f"{process.name} has the keyboard")

    def press(self, process, *keys):
        """Presses keys for the program, which must have the keyboard."""
        self.wait_until_active(process)
        keyboard.press(*keys)

    # Failing

    def describe_applications(self):
        """The accessible trees of all programs that run."""
        descriptions = []
        for process in self._processes:
            tree = accessibility.application(process.pid) if process.is_running else None
            state = "runs" if process.is_running else "has ended"
            descriptions.append(f"{process.name} ({process.pid}) {state}")
            descriptions.append(tree.describe() if tree else "no accessible tree")
        return "\n".join(descriptions)

    def complaints(self, process):
        """What is wrong with a program that was ended, one line each. For tests to add to."""
        del process
        return []

    def _end(self):
        place = self._keep() if self._trouble() > self._trouble_before else None
        complaints = []
        for process in reversed(self._processes):
            if process.has_ended_unasked:
                complaints.append(f"{process.name} ended by itself with {process.wait()}")
            elif process.is_running:
                self._terminate(process, complaints)
            complaints += self.complaints(process)
        if complaints:
            place = place or self._keep()
            self.fail("\n".join(complaints) + f"\nkept in {place}")

    def _terminate(self, process, complaints):
        try:
            process.terminate()
        except AssertionError as error:
            complaints.append(str(error))
            process.kill()

    def _keep(self):
        outputs = {f"{process.name}-{process.pid}": process.output for process in self._processes}
        return artifacts.keep(self.id(), self.describe_applications(), outputs)

    def _trouble(self):
        return len(self._result.failures) + len(self._result.errors) if self._result else 0
