# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The rows of the table: printed by what measures, one JSON object a line, and read by bench/table."""

import json


def row(what, figure, unit, *, most=None, reference=None, most_times=None):
    """A figure, usually a median.

    `reference` is what it is compared with, in the same unit and from the same run. The target is to be at most `most`,
    or at most `most_times` the reference.
    """
    print(
        json.dumps(
            {
                "what": what,
                "figure": figure,
                "unit": unit,
                "most": most,
                "reference": reference,
                "most_times": most_times,
            }
        ),
        flush=True,
    )
