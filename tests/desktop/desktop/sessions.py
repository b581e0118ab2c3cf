# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Parts of a session that a test may take away, because the tests themselves live in another one."""

import os
import re
import subprocess

from gi.repository import Gio

# A bus that starts no services: nothing can be asked of it but who is there.
BARE_BUS = """<busconfig>
  <type>session</type>
  <listen>unix:tmpdir={folder}</listen>
  <policy context="default">
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""


class Screen:
    """An X server without a window manager; `environment` leads programs to it."""

    def __init__(self, test):
        self._test = test
        self.process = test.start("Xvfb", "-displayfd", "1", "-nolisten", "tcp", "-noreset")
        # It complains of numbers that are taken before it tells its own.
        number = test.wait_for(lambda: re.search(r"^(\d+)\n", self.process.output, re.M), "the screen tells its number")
        self.environment = {"DISPLAY": f":{number[1]}"}


    def press(self, *keys):
        """Presses keys for the window there that has the keyboard."""
        subprocess.run(["xdotool", "key", *keys], env={**os.environ, **self.environment}, check=True)

    def start_window_manager(self):
        there = {**os.environ, **self.environment}

        def manages():
            looked = subprocess.run(
                ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=there, capture_output=True, text=True
            )
            return "window id" in looked.stdout

        manager = self._test.start("openbox", "--sm-disable", environment=there)
        self._test.wait_for(manages, "the screen is managed")
        return manager


class Bus:
    """A session bus; `environment` leads programs to it."""

    def __init__(self, test):
        self._test = test
        configuration = test.directory / "bus.conf"
        configuration.write_text(BARE_BUS.format(folder=test.directory), encoding="utf-8")
        self.process = test.start(
            "dbus-daemon", "--nofork", "--nopidfile", "--nosyslog", "--print-address=1", f"--config-file={configuration}"
        )
        address = test.wait_for(lambda: self.process.output.partition("\n")[0], "the bus tells its address")
        self.environment = {"DBUS_SESSION_BUS_ADDRESS": address}
        flags = Gio.DBusConnectionFlags
        self._connection = Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
        )
        self._connection.set_exit_on_close(False)

    def wait_for_name(self, name):
        """Waits until a program has that name."""
        names = ("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames")

        def is_there():
            reply = self._connection.call_sync(*names, None, None, Gio.DBusCallFlags.NONE, 1000, None)
            return name in reply.unpack()[0]

        self._test.wait_for(is_there, f"{name} is on the bus")
