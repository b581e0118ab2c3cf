# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The program's stored defaults, read and written from outside."""

import json


class Defaults:
    """The file with the defaults in a configuration directory."""

    def __init__(self, config_home):
        self.path = config_home / "keyvora" / "defaults.json"

    def read(self):
        """Everything stored; fails when the file is not one whole JSON object."""
        if not self.path.exists():
            return {}
        values = json.loads(self.path.read_text(encoding="utf-8"))
        if not isinstance(values, dict):
            raise AssertionError(f"{self.path} holds {type(values).__name__}, not an object")
        return values

    def write(self, values):
        """Stores these values and no others."""
        self.path.parent.mkdir(parents=True, exist_ok=True)
        self.path.write_text(json.dumps(values, ensure_ascii=False), encoding="utf-8")
