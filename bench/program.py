# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Keyvora and the clock that watches the screen, for what measures on a virtual desktop."""

import contextlib
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "tests" / "desktop"))

BUILD = HERE.parent / "build" / "release"
KEYVORA = BUILD / "keyvora"
BARE_TRAY = BUILD / "keyvora_bare_tray"
BARE_WINDOW = BUILD / "keyvora_bare_window"

USED_BEFORE = {
    "hasLaunchedBefore": True,
    "hasSeenOnboarding": True,
    "appLanguage": "en",
    "smartSuggestions": True,
}


@contextlib.contextmanager
def stored(values):
    """An environment in which the program finds these defaults."""
    with tempfile.TemporaryDirectory(prefix="bench-", dir=os.environ["HOME"]) as folder:
        config = pathlib.Path(folder)
        (config / "fontconfig").symlink_to(os.path.join(os.environ["XDG_CONFIG_HOME"], "fontconfig"))
        (config / "keyvora").mkdir()
        (config / "keyvora" / "defaults.json").write_text(json.dumps(values), encoding="utf-8")
        yield {**os.environ, "QT_QPA_PLATFORM": "xcb", "XDG_CONFIG_HOME": folder, "XDG_STATE_HOME": folder}


@contextlib.contextmanager
def running(command, environment=None):
    """A program that runs as long as the context."""
    process = subprocess.Popen(list(map(str, command)), env=environment, stdout=subprocess.DEVNULL)
    try:
        yield process
        if process.poll() is not None:
            raise RuntimeError(f"{command[0]} ended by itself with {process.returncode}")
    finally:
        process.terminate()
        process.wait()


class Clock:
    """The screen clock: see ScreenClock.cpp. Times are in milliseconds."""

    def __init__(self, environment=None):
        self._process = subprocess.Popen(
            [BUILD / "keyvora_screen_clock"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, env=environment
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.stdin.close()
        self._process.stdout.close()
        self._process.wait()

    def ask(self, *command):
        self._tell(*command)
        return self._time(command)

    def watch(self, pid, event, action):
        """The time until what `action` causes."""
        self._tell(pid, event, "wait")
        self._answer()
        action()
        return self._time((pid, event))

    def _tell(self, *command):
        self._process.stdin.write(" ".join(map(str, command)) + "\n")
        self._process.stdin.flush()

    def _answer(self):
        return self._process.stdout.readline().strip()

    def _time(self, command):
        answer = self._answer()
        if not answer or answer == "never":
            raise RuntimeError(f"nothing came after {' '.join(map(str, command))}")
        return float(answer)


def pss(process):
    """The memory of a process in KiB; what it shares with others counts in part."""
    rollup = pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text(encoding="ascii")
    return int(re.search(r"^Pss: +(\d+) kB$", rollup, re.MULTILINE)[1])


def rested(process):
    """Waits until the memory has stayed nearly the same for four seconds, and returns it."""
    looks = [pss(process)]
    while len(looks) < 30 and (len(looks) < 5 or max(looks[-5:]) - min(looks[-5:]) > 64):
        time.sleep(1)
        looks.append(pss(process))
    return looks[-1]
