# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""What programs tell assistive technologies: who they are, what they show, and where."""

import re
from collections import namedtuple

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from . import accessibility_bus as bus  # noqa: E402

MAXIMUM_NODES = 5000

Role = Atspi.Role
State = Atspi.StateType

Rectangle = namedtuple("Rectangle", "x y width height")

# The states that a description of a tree mentions.
TOLD_STATES = (
    State.SHOWING,
    State.FOCUSED,
    State.CHECKED,
    State.SELECTED,
    State.SENSITIVE,
    State.ACTIVE,
    State.MODAL,
)


class Node:
    """One accessible object. Asks the program each time; nothing is remembered.

    An object that is gone has no name, no states and no children.
    """

    def __init__(self, owner, path):
        self._owner = owner
        self._path = path

    def __eq__(self, other):
        return isinstance(other, Node) and (self._owner, self._path) == (other._owner, other._path)

    def __hash__(self):
        return hash((self._owner, self._path))

    def __repr__(self):
        return f"<{self.role.value_nick} {self.name!r}>"

    @property
    def role(self):
        return Role(self._ask("Accessible.GetRole", default=0))

    @property
    def name(self):
        return self._property("Accessible.Name", "")

    @property
    def description(self):
        return self._property("Accessible.Description", "")

    @property
    def children(self):
        children = self._ask("Accessible.GetChildren", default=[])
        return [Node(owner, path) for owner, path in children[:MAXIMUM_NODES] if path != NOTHING]

    def has(self, *states):
        """Whether it is in all of these states."""
        words = self._ask("Accessible.GetState", default=[])
        bits = sum(word << (32 * position) for position, word in enumerate(words))
        return all(bits >> int(state) & 1 for state in states)

    @property
    def is_showing(self):
        return self.has(State.SHOWING, State.VISIBLE)

    @property
    def is_checked(self):
        return self.has(State.CHECKED)

    @property
    def is_selected(self):
        return self.has(State.SELECTED)

    @property
    def is_focused(self):
        return self.has(State.FOCUSED)

    @property
    def extents(self):
        """Where it is on the screen, or nothing."""
        extents = self._ask("Component.GetExtents", GLib.Variant("(u)", (int(Atspi.CoordType.SCREEN),)))
        return Rectangle(*extents) if extents else None

    @property
    def centre(self):
        extents = self.extents
        return (extents.x + extents.width // 2, extents.y + extents.height // 2) if extents else None

    @property
    def text(self):
        """The text that it holds, as a text field does."""
        length = self._property("Text.CharacterCount", 0)
        return self._ask("Text.GetText", GLib.Variant("(ii)", (0, length)), "")

    def press(self):
        """Does what a click on it would do, without the pointer and without the keyboard's place."""
        self._ask("Action.DoAction", GLib.Variant("(i)", (0,)))

    def walk(self):
        """The object and everything below it, in reading order."""
        ahead = [self]
        for _ in range(MAXIMUM_NODES):
            if not ahead:
                return
            node = ahead.pop()
            yield node
            ahead.extend(reversed(node.children))

    def find_all(self, role=None, name=None, showing=True):
        """Everything below that fits.

        `role` is one role or several; `name` is the whole name or a compiled pattern to be found in it.
        """
        roles = role if role is None or isinstance(role, (tuple, list, set)) else (role,)
        for node in self.walk():
            if roles is not None and node.role not in roles:
                continue
            if name is not None and not _fits(name, node.name):
                continue
            if showing and not node.is_showing:
                continue
            yield node

    def find(self, role=None, name=None, showing=True):
        """The first that fits, or nothing."""
        return next(self.find_all(role, name, showing), None)

    def describe(self):
        """The tree below, one object a line."""
        return "\n".join(self._described(0, [MAXIMUM_NODES]))

    def _described(self, depth, budget):
        budget[0] -= 1
        if budget[0] < 0:
            return
        states = " ".join(state.value_nick for state in TOLD_STATES if self.has(state))
        extents = self.extents
        place = "{},{} {}x{}".format(*extents) if extents else "nowhere"
        yield f"{'  ' * depth}{self.role.value_nick} {self.name!r} ({place}) {states}".rstrip()
        for child in self.children:
            yield from child._described(depth + 1, budget)

    def _ask(self, method, arguments=None, default=None):
        try:
            return bus.ask(self._owner, self._path, f"org.a11y.atspi.{method}", arguments)[0]
        except bus.NoAnswer:
            return default

    def _property(self, name, default):
        try:
            return bus.property_of(self._owner, self._path, f"org.a11y.atspi.{name}")
        except bus.NoAnswer:
            return default


NOTHING = "/org/a11y/atspi/null"


def application(pid):
    """The program with that process id, or nothing while it is not known to assistive technologies."""
    for child in Node(*bus.REGISTRY).children:
        try:
            if bus.pid_of(child._owner) == pid:
                return child
        except bus.NoAnswer:
            continue
    return None


def _fits(wanted, name):
    return wanted.search(name) is not None if isinstance(wanted, re.Pattern) else wanted == name
