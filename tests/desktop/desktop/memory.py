# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Looks for texts in the memory of a running program."""

import mmap
import re

ENCODINGS = ("utf-8", "utf-16-le", "utf-32-le")
CHUNK_BYTES = 1 << 20

READABLE = re.compile(r"^([0-9a-f]+)-([0-9a-f]+) r")


def holds(pid, text):
    """Whether a text is anywhere in the memory that a process can read, in any common encoding."""
    needles = [text.encode(encoding) for encoding in ENCODINGS]
    return any(needle in chunk for chunk in _chunks(pid, max(map(len, needles))) for needle in needles)


def _chunks(pid, overlap):
    """The memory in pieces; each begins with the end of the one before it."""
    with open(f"/proc/{pid}/maps", encoding="utf-8") as maps, open(f"/proc/{pid}/mem", "rb", buffering=0) as memory:
        for line in maps:
            match = READABLE.match(line)
            # The kernel's own page is out of reach.
            if not match or "[vsyscall]" in line:
                continue
            position, end = int(match[1], 16), int(match[2], 16)
            tail = b""
            while position < end:
                chunk = _read(memory, position, min(CHUNK_BYTES, end - position))
                yield tail + chunk
                tail = chunk[-overlap:]
                position += len(chunk) or mmap.PAGESIZE


def _read(memory, position, size):
    """What can be read there: less than asked for, or nothing, in front of a page that cannot."""
    try:
        memory.seek(position)
        return memory.read(size)
    except OSError:
        return b""
