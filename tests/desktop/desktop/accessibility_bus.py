# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The bus on which programs answer assistive technologies.

Asked directly: the usual library remembers old answers, and with its memory switched off it can wait for itself
for ever.
"""

import functools

from gi.repository import Gio, GLib

# A program that does not answer costs this much per question.
TIMEOUT_MILLISECONDS = 1000

REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")

# What may change what a person sees. The listeners are only woken, they look for themselves.
EVENTS = (
    "object:state-changed",
    "object:children-changed",
    "object:property-change:accessible-name",
    "object:text-changed",
    "window:activate",
    "window:deactivate",
)


class NoAnswer(Exception):
    """The object is gone, its program hangs, or it cannot be asked this."""


def ask(owner, path, method, arguments=None):
    """Calls a method, named with its interface, and returns the values of the answer."""
    interface, _, member = method.rpartition(".")
    try:
        reply = _connection().call_sync(
            owner, path, interface, member, arguments, None, Gio.DBusCallFlags.NONE, TIMEOUT_MILLISECONDS, None
        )
    except GLib.Error as error:
        raise NoAnswer(f"{owner}{path} {method}: {error.message}") from None
    return reply.unpack()


def property_of(owner, path, name):
    """Reads a property, named with its interface."""
    arguments = GLib.Variant("(ss)", tuple(name.rsplit(".", 1)))
    return ask(owner, path, "org.freedesktop.DBus.Properties.Get", arguments)[0]


def pid_of(owner):
    """The process that talks under that name."""
    arguments = GLib.Variant("(s)", (owner,))
    method = "org.freedesktop.DBus.GetConnectionUnixProcessID"
    return ask("org.freedesktop.DBus", "/org/freedesktop/DBus", method, arguments)[0]


@functools.cache
def listen():
    """From now on, changes in any program wake the main loop."""
    connection = _connection()
    for interface in ("Object", "Window"):
        connection.signal_subscribe(
            None, f"org.a11y.atspi.Event.{interface}", None, None, None, Gio.DBusSignalFlags.NONE, _ignore
        )
    for event in EVENTS:
        arguments = GLib.Variant("(sass)", (event, [], ""))
        ask(REGISTRY[0], "/org/a11y/atspi/registry", "org.a11y.atspi.Registry.RegisterEvent", arguments)


@functools.cache
def _connection():
    session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    address = session.call_sync(
        "org.a11y.Bus",
        "/org/a11y/bus",
        "org.a11y.Bus",
        "GetAddress",
        None,
        None,
        Gio.DBusCallFlags.NONE,
        TIMEOUT_MILLISECONDS,
        None,
    ).unpack()[0]
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
    )


def _ignore(*_):
    pass
