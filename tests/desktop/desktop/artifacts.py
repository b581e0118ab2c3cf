# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""What a failed test leaves behind for a person to look at."""

import os
import pathlib
import shutil

from . import screenshot

TREE = pathlib.Path(__file__).resolve().parents[3]


def directory(test_name):
    """The directory of one test's remains."""
    root = os.environ.get("KEYVORA_ARTIFACTS") or TREE / "build" / "desktop-failures"
    return pathlib.Path(root) / test_name


def keep(test_name, described_applications, outputs):
    """Keeps the screen, the accessible trees and the programs' output; returns the directory.

    `outputs` are the texts by the programs' names.
    """
    place = directory(test_name)
    shutil.rmtree(place, ignore_errors=True)
    place.mkdir(parents=True)
    screenshot.save(place / "screen.png")
    (place / "accessible-tree.txt").write_text(described_applications, encoding="utf-8")
    for name, text in outputs.items():
        (place / f"{name}.log").write_text(text, encoding="utf-8")
    return place
