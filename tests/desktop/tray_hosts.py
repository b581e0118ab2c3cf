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

# A panel along one edge with nothing but the status area at its end.
XFCE_PANEL = {
    "/configver": ("int", 2),
    "/panels": ("array", (1,)),
    "/panels/panel-1/position-locked": ("bool", "true"),
    "/panels/panel-1/length": ("uint", 100),
    "/panels/panel-1/size": ("uint", 28),
    "/panels/panel-1/plugin-ids": ("array", (1, 2)),
    "/plugins/plugin-1": ("string", "separator"),
    "/plugins/plugin-1/expand": ("bool", "true"),
    "/plugins/plugin-1/style": ("uint", 0),
    "/plugins/plugin-2": ("string", "systray"),
}
# Its corner, and whether it stands upright.
XFCE_EDGES = {"top": (6, 0), "bottom": (8, 0), "left": (6, 1), "right": (2, 1)}

TINT2 = """panel_items = S
panel_position = {position}
panel_size = 100% 30
systray_padding = 2 2 2
systray_icon_size = 22
"""
TINT2_EDGES = {
    "top": "top center horizontal",
    "bottom": "bottom center horizontal",
    "left": "center left vertical",
    "right": "center right vertical",
}

WINDOW = re.compile(
    r'^(?P<indent> +)0x[0-9a-f]+ (?:"(?P<name>.*)"|\(has no name\)): '
    r'\((?:"(?P<instance>.*)" "(?P<class>.*)")?\)  (?P<width>\d+)x(?P<height>\d+)[+-]\S+'
    r"  \+(?P<x>-?\d+)\+(?P<y>-?\d+)$"
)


def start_xfce_panel(edge="top"):
    """Reads icons from the session bus (StatusNotifierItem); also embeds windows."""
    corner, is_upright = XFCE_EDGES[edge]
    place = {
        "/panels/panel-1/position": ("string", f"p={corner};x=0;y=0"),
        "/panels/panel-1/mode": ("uint", is_upright),
    }
    # The session's settings outlive the panel.
    for name, (kind, value) in (XFCE_PANEL | place).items():
        values = [("int", each) for each in value] if kind == "array" else [(kind, value)]
        options = [option for kind, each in values for option in ("--type", kind, "--set", str(each))]
        force = ["--force-array"] if kind == "array" else []
        command = ["xfconf-query", "--channel", "xfce4-panel", "--property", name, "--create", *force, *options]
        subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    return _start(["xfce4-panel", "--disable-wm-check"], "Xfce4-panel")


def start_trayer(edge="top", monitor=0):
    """Embeds windows; is as wide as its icons, and sits at the right end of its edge, or in the middle of an upright one."""
    align = "right" if edge in ("top", "bottom") else "center"
    place = ["--edge", edge, "--align", align, "--height", "24", "--widthtype", "request", "--monitor", str(monitor)]
    return _start(["trayer", *place], "trayer")


def start_tint2(edge="top"):
    """Embeds windows; a panel along the whole edge with the icons at its beginning."""
    config = _config("tint2/tray.tint2rc")
    config.parent.mkdir(parents=True, exist_ok=True)
    config.write_text(TINT2.format(position=TINT2_EDGES[edge]))
    return _start(["tint2", "-c", str(config)], "Tint2")


def find_tray_icon(host, program="keyvora"):
    """Waits until the running host shows the program's icon at rest; returns its centre on the screen."""
    if host.args[0] == "xfce4-panel":
        # It draws the icons itself, in one window that is a pixel long without icons. The program's icon is
        # the only one there.
        def is_icon(window):
            is_long = window["width"] > 1 and window["height"] > 1
            return window["name"] == "wrapper-2.0" and window["depth"] > 1 and is_long
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
    # Beside its panel, a host has invisible windows of the same class that are ten pixels wide and high.
    def is_panel(window):
        return window["class"] == window_class and max(window["width"], window["height"]) > 10

    host = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        _await(host, lambda: any(map(is_panel, _windows())))
    except BaseException:
        host.kill()
        host.wait()
        raise
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
