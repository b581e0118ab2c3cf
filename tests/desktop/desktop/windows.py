# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Windows as the window manager knows them. A window is named by its number."""

import re
import subprocess

from .accessibility import Rectangle


def active():
    """The window that has the keyboard, or nothing."""
    numbers = _numbers(_property("-root", name="_NET_ACTIVE_WINDOW"))
    return numbers[0] if numbers and numbers[0] else None


def active_pid():
    """The process whose window has the keyboard, or nothing."""
    window = active()
    return pid_of(window) if window else None


def all_windows():
    return _numbers(_property("-root", name="_NET_CLIENT_LIST"))


def of_process(pid):
    """The windows of a process that the window manager looks after, oldest first."""
    return [window for window in all_windows() if pid_of(window) == pid]


def pid_of(window):
    value = _property("-id", str(window), name="_NET_WM_PID").strip()
    return int(value) if value.isdigit() else None


def title(window):
    """The title, or nothing when there is no such window."""
    match = re.search(r'"(.*)"', _property("-id", str(window), name="_NET_WM_NAME"))
    return match[1] if match else None


def is_shown(window):
    """Whether it is on the screen; a minimized window is not."""
    return "Map State: IsViewable" in _output("xwininfo", "-id", str(window))


def is_minimized(window):
    return "Iconic" in _property("-id", str(window), name="WM_STATE")


def is_maximized(window):
    states = _property("-id", str(window), name="_NET_WM_STATE")
    return all(f"_NET_WM_STATE_MAXIMIZED_{direction}" in states for direction in ("HORZ", "VERT"))


def frame_free_geometry(window):
    """Where its content is on the screen, without the frame around it."""
    facts = _output("xwininfo", "-id", str(window))
    names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
    numbers = [re.search(rf"{name}: +(-?\d+)", facts) for name in names]
    return Rectangle(*(int(number[1]) for number in numbers)) if all(numbers) else None


def at(x, y):
    """Moves the pointer to a point of the screen and returns the window on top there, of whatever kind."""
    facts = _output("xdotool", "mousemove", str(x), str(y), "getmouselocation", "--shell")
    return int(re.search(r"^WINDOW=(\d+)$", facts, re.MULTILINE)[1])


def work_area():
    """The part of the screen that panels leave to applications, or nothing."""
    numbers = re.findall(r"\d+", _property("-root", name="_NET_WORKAREA"))
    return Rectangle(*map(int, numbers[:4])) if len(numbers) >= 4 else None


def workspace():
    """The number of the workspace that shows."""
    return int(_property("-root", name="_NET_CURRENT_DESKTOP"))


def set_workspaces(count):
    subprocess.run(["xdotool", "set_num_desktops", str(count)], check=True)


def show_workspace(number):
    subprocess.run(["xdotool", "set_desktop", str(number)], check=True)


def activate(window):
    """Asks the window manager to hand the keyboard to a window, as a task bar does."""
    subprocess.run(["xdotool", "windowactivate", str(window)], check=True)


def move(window, x, y):
    subprocess.run(["xdotool", "windowmove", str(window), str(x), str(y)], check=True)


def resize(window, width, height):
    subprocess.run(["xdotool", "windowsize", str(window), str(width), str(height)], check=True)


def _property(*target, name):
    """What follows the property's name; nothing when the window or the property does not exist."""
    output = _output("xprop", *target, name)
    match = re.match(rf"{name}(?:\(\w+\))?(?: = |: window id # |:)(.*)", output, re.DOTALL)
    return match[1] if match else ""


def _numbers(text):
    return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", text)]


def _output(*command):
    # A window may be gone at any moment, which is an answer, not an error.
    return subprocess.run(command, capture_output=True, text=True, check=False).stdout
