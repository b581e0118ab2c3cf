# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Waiting for things to become true, without sleeping."""

import time

from gi.repository import GLib

from . import accessibility_bus

DEADLINE_SECONDS = 20
LOOK_AGAIN_MILLISECONDS = 50


class TimedOut(AssertionError):
    """Something did not become true within its deadline."""


def wait_for(condition, what, seconds=DEADLINE_SECONDS, explain=lambda: ""):
    """Returns what `condition` returns as soon as that is truthy.

    Looks again when the programs announce a change, and after a moment anyway. When the deadline has passed,
    fails with `what` was awaited and with what `explain` has to say about the situation.
    """
    accessibility_bus.listen()
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() >= end:
            raise TimedOut(f"not within {seconds} s: {what}\n{explain()}")
        _wait_for_event(context)


def watch(condition, what, seconds=1, explain=lambda: ""):
    """Fails when the condition becomes truthy while it is watched.

    That something does not happen can only be seen by looking for a while.
    """
    try:
        wait_for(condition, what, seconds)
    except TimedOut:
        return
    raise AssertionError(f"it happened: {what}\n{explain()}")


def _wait_for_event(context):
    look_again = GLib.timeout_source_new(LOOK_AGAIN_MILLISECONDS)
    look_again.set_callback(lambda *_: GLib.SOURCE_REMOVE)
    look_again.attach(context)
    context.iteration(True)
    # One change is often announced by many events.
    while context.pending():
        context.iteration(False)
    look_again.destroy()
