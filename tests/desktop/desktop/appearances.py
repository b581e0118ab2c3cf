# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The windows that come up by themselves, however briefly: looking now and then would miss some."""

import re
import subprocess

from . import windows

# As the X server reports a window that came up without the window manager: overlays, notices, menus.
UNMANAGED = re.compile(r"^MapNotify event,.*\n.* window (0x[0-9a-f]+), override YES", re.MULTILINE)

MARK = "_APPEARANCES_MARK"


class Appearances:
    """A record of the windows that came up since it was made."""

    def __init__(self, test):
        self._test = test
        self._marks = 0
        self._listener = test.start("xev", "-root", "-event", "substructure", "-event", "property")
        # Marks are not heard until the listener listens.
        test.wait_for(lambda: self._mark() or MARK in self._listener.output, "appearing windows are recorded")

    def of_process(self, process):
        """The windows of a process that came up without the window manager, one entry each time."""
        numbers = [int(number, 16) for number in UNMANAGED.findall(self._all_heard())]
        return [number for number in numbers if windows.pid_of(number) == process.pid]

    def _all_heard(self):
        """What was reported until now, all of it."""
        marks = self._listener.output.count(MARK)
        self._mark()
        self._test.wait_for(lambda: self._listener.output.count(MARK) > marks, "all reports have come")
        return self._listener.output

    def _mark(self):
        self._marks += 1
        subprocess.run(["xprop", "-root", "-format", MARK, "32c", "-set", MARK, str(self._marks)], check=True)
