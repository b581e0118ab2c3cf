# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Keys, pressed for whichever window has the keyboard."""

import contextlib
import subprocess


def press(*keys):
    """Presses keys one after another; each is named as in "ctrl+f", "Escape", "Tab"."""
    subprocess.run(["xdotool", "key", *keys], check=True)


def type_text(text):
    """Types a text whose characters are all on the keyboard."""
    subprocess.run(["xdotool", "type", "--", text], check=True)


@contextlib.contextmanager
def held(*keys):
    """Holds keys down, such as "Control_L", for as long as the context lasts."""
    for key in keys:
        subprocess.run(["xdotool", "keydown", key], check=True)
    try:
        yield
    finally:
        for key in reversed(keys):
            subprocess.run(["xdotool", "keyup", key], check=True)


@contextlib.contextmanager
def lock(key):
    """Turns on a lock, "Num_Lock" or "Caps_Lock", for as long as the context lasts."""
    press(key)
    try:
        yield
    finally:
        press(key)


@contextlib.contextmanager
def layout(name):
    """Another keyboard layout, such as "cz", for as long as the context lasts."""
    subprocess.run(["setxkbmap", name], check=True)
    try:
        yield
    finally:
        subprocess.run(["setxkbmap", "us"], check=True)
