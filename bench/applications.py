# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Real applications to measure beside."""

import subprocess
import time

WRITER = ["soffice", "--writer", "--norestore", "--nologo"]


def started(command):
    """A running application, in a session of its own."""
    return subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)


def output(command):
    done = subprocess.run(command, capture_output=True, text=True, check=False)
    return done.stdout.split("\n") if done.returncode == 0 else []


def processes(session):
    """The processes of an application's session, as launchers hand over to other programs."""
    listing = subprocess.run(["ps", "-o", "pid=", "--sid", str(session)], capture_output=True, text=True, check=False)
    return [int(pid) for pid in listing.stdout.split()]


def wait_for_menu(session, benchmark):
    """Until the number of entries no longer grows."""
    deadline = time.monotonic() + 90
    before = None
    while time.monotonic() < deadline:
        for pid in processes(session):
            lines = output([benchmark, str(pid)])
            if not lines or not lines[0]:
                continue
            entries = int(lines[0].split()[3])
            if entries > 0 and (pid, entries) == before:
                return pid
            before = (pid, entries)
        time.sleep(1)
    return None
