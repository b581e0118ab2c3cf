# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Pictures of the whole screen."""

import subprocess


def save(path):
    """Writes what is on the screen to a PNG file."""
    subprocess.run(["maim", "--hidecursor", str(path)], check=True)
