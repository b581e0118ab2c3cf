# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Programs under observation: started with their own environment, their output kept."""

import contextlib
import os
import signal
import subprocess

DEADLINE_SECONDS = 20


class Process:
    """A running program; what it writes goes to a file."""

    def __init__(self, command, environment, log):
        """Starts `command`. `log` is the path of the file for its output."""
        self.command = [str(part) for part in command]
        self.exit_code = None
        self.was_killed = False
        self._log = log
        with open(log, "wb") as output:
            self._popen = subprocess.Popen(
                self.command, stdin=subprocess.DEVNULL, stdout=output, stderr=output, env=environment
            )

    @property
    def name(self):
        return os.path.basename(self.command[0])

    @property
    def pid(self):
        return self._popen.pid

    @property
    def is_running(self):
        return self._popen.poll() is None

    @property
    def output(self):
        """What it has written so far."""
        with open(self._log, encoding="utf-8", errors="replace") as output:
            return output.read()

    @property
    def has_ended_unasked(self):
        """Whether it ended although nobody waited for that."""
        return not self.is_running and self.exit_code is None

    def wait(self, seconds=DEADLINE_SECONDS):
        """Waits for its end and returns its exit code; minus the signal that ended it, if one did."""
        try:
            self.exit_code = self._popen.wait(seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"{self.name} ({self.pid}) still runs after {seconds} s") from None
        return self.exit_code

    def terminate(self, seconds=DEADLINE_SECONDS):
        """Asks it to end, as a session that is closed does, and returns its exit code."""
        self._popen.send_signal(signal.SIGTERM)
        return self.wait(seconds)

    def kill(self):
        """Ends it without giving it a chance to do anything, as a power failure does."""
        self.was_killed = True
        self._popen.kill()
        self.wait()


@contextlib.contextmanager
def stopped(process):
    """A process that neither runs nor ends as long as the context lasts, as one that hangs."""
    os.kill(process.pid, signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(process.pid, signal.SIGCONT)
