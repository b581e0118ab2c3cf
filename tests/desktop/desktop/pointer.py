# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The mouse."""

import contextlib
import subprocess

LEFT, MIDDLE, RIGHT = 1, 2, 3
WHEEL_DOWN = 5


def click(node, button=LEFT):
    """Clicks the middle of what an accessible object shows."""
    centre = node.centre
    if centre is None:
        raise AssertionError(f"nothing to click at: {node.describe()}")
    click_at(*centre, button)


def click_at(x, y, button=LEFT):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", str(button)], check=True)


def double_click_at(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "--repeat", "2", str(LEFT)], check=True)


@contextlib.contextmanager
def held_at(x, y, button=LEFT):
    """Presses the button there and releases it, in the same place, when the context ends."""
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "mousedown", str(button)], check=True)
    try:
        yield
    finally:
        subprocess.run(["xdotool", "mouseup", str(button)], check=True)


def move_to(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)
