# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Status areas for the tests: starts one inside the virtual desktop and finds the program's icon in it.

The window manager must run before a host starts: hosts that meet it half-way stay outside its care or end.
A host is stopped with kill() and wait(); it may be started again at once. Only one host at a time owns the
screen's embedding tray. xfce4-panel takes that one, too, and the host that had it never gets it back.
"""

import os
import pathlib
import re
import subprocess
import time

DEADLINE_SECONDS = 15
LOOK_AGAIN_SECONDS = 0.05

# A panel along the top edge with nothing but the status area at its right end.
XFCE_PANEL = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array">
        <value type="int" value="1"/>
        <value type="int" value="2"/>
      </property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="separator">
      <property name="expand" type="bool" value="true"/>
      <property name="style" type="uint" value="0"/>
    </property>
    <property name="plugin-2" type="string" value="systray"/>
  </property>
</channel>
"""

TINT2 = """panel_items = S
panel_position = top center horizontal
panel_size = 100% 30
systray_padding = 2 2 2
systray_icon_size = 22
"""

WINDOW = re.compile(
    r'^(?P<indent> +)0x[0-9a-f]+ (?:"(?P<name>.*)"|\(has no name\)): '
    r'\((?:"(?P<instance>.*)" "(?P<class>.*)")?\)  (?P<width>\d+)x(?P<height>\d+)[+-]\S+'
    r"  \+(?P<x>-?\d+)\+(?P<y>-?\d+)$"
)


def start_xfce_panel():
    """Reads icons from the session bus (StatusNotifierItem); also embeds windows."""
    config = _config("xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml")
    if not config.exists():
        config.parent.mkdir(parents=True, exist_ok=True)
        config.write_text(XFCE_PANEL)
    return _start(["xfce4-panel", "--disable-wm-check"], "Xfce4-panel")


def start_trayer():
    """Embeds windows; sits in the upper right corner and is as wide as its icons."""
    return _start(["trayer", "--edge", "top", "--align", "right", "--height", "24", "--widthtype", "request"], "trayer")


def start_tint2():
    """Embeds windows; a panel along the top edge with the icons at its left end."""
    config = _config("tint2/tray.tint2rc")
    config.parent.mkdir(parents=True, exist_ok=True)
    config.write_text(TINT2)
    return _start(["tint2", "-c", str(config)], "Tint2")


def find_tray_icon(host, program="keyvora"):
    """Waits until the running host shows the program's icon at rest; returns its centre on the screen."""
    if host.args[0] == "xfce4-panel":
        # It draws the icons itself, in one window that is a pixel wide without icons. The program's icon is
        # the only one there.
        def is_icon(window):
            return window["name"] == "wrapper-2.0" and window["depth"] > 1 and window["width"] > 1
    else:
        # It wraps the program's window into one of its own.
        def is_icon(window):
            return (window["class"] or "").lower() == program and window["depth"] > 1

    def icon():
        return next((_centre(window) for window in _windows() if is_icon(window)), None)

    # A host makes room for the icon first and moves it into place afterwards.
    return _await(host, _unchanged(icon, looks=3))


def has_embedded_icon(program="keyvora"):
    """Whether an icon of the program is embedded anywhere, shown or not."""
    return any((window["class"] or "").lower() == program and _is_small(window) for window in _windows())


def _start(command, window_class):
    host = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    # Beside its panel, a host has invisible windows of the same class that are ten pixels high.
    _await(host, lambda: any(window["class"] == window_class and window["height"] > 10 for window in _windows()))
    return host


def _config(path):
    return pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / path


def _await(host, look):
    """Looks until there is something to see; fails when the host ends or the deadline passes."""
    deadline = time.monotonic() + DEADLINE_SECONDS
    while time.monotonic() < deadline:
        seen = look()
        if seen:
            return seen
        try:
            raise RuntimeError(f"{host.args[0]} ended with {host.wait(LOOK_AGAIN_SECONDS)}")
        except subprocess.TimeoutExpired:
            pass
    raise TimeoutError(f"nothing to see in {host.args[0]}")


def _unchanged(look, looks):
    """Sees only what that many looks in a row have shown."""
    recent = []

    def steady_look():
        recent[:] = [*recent, look()][-looks:]
        return recent[0] if len(recent) == looks and len(set(recent)) == 1 else None

    return steady_look


def _windows():
    """All windows on the screen; children of the root window have depth 0."""
    tree = subprocess.run(["xwininfo", "-root", "-tree"], capture_output=True, text=True, check=False)
    # It gives up when a window ends while it counts; what it has counted by then is no whole.
    for line in tree.stdout.splitlines() if tree.returncode == 0 else []:
        match = WINDOW.match(line)
        if match:
            numbers = {key: int(match[key]) for key in ("width", "height", "x", "y")}
            # The tree is indented by five columns at the root's children and by three more at each level.
            yield match.groupdict() | numbers | {"depth": (len(match["indent"]) - 5) // 3}


def _centre(window):
    return window["x"] + window["width"] // 2, window["y"] + window["height"] // 2


def _is_small(window):
    return 1 < window["width"] <= 48 and 1 < window["height"] <= 48
