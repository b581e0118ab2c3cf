# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Windows on screens that are dense, small, or several."""

import json
import subprocess

from desktop import keyboard, windows
from desktop.accessibility import Rectangle, Role
from desktop.appearances import Appearances
from desktop.keyvora import FIELD_ROLES, WINDOW_TITLE, KeyvoraTestCase

# The desktop's screen, which the window does not fill at its ordinary size but does not hold it twice as large.
SCREEN = Rectangle(0, 0, 1280, 800)
ORDINARY = (980, 678)
CORNER_MARGIN = 22


class ScalingTestCase(KeyvoraTestCase):
    def place(self):
        """The content of the main window, in pixels."""
        return windows.frame_free_geometry(self.window(self.program, WINDOW_TITLE))

    def see_whole(self):
        """The place of the main window, once the whole of it is on the screen."""

        def whole():
            place = self.place()
            return place if place and is_within(place, windows.work_area()) else None

        return self.wait_for(whole, "the whole window is on the screen")

    def assert_larger_by(self, factor):
        place = self.see_whole()
        for length, ordinary in zip(place[2:], ORDINARY, strict=True):
            self.assertAlmostEqual(length, ordinary * factor, delta=1)

    def remember_frame(self, frame):
        path = self.directory / "state" / "keyvora" / "windows.json"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(json.dumps({"MainWindow": " ".join(map(str, frame))}), encoding="utf-8")


class TestDenseScreens(ScalingTestCase):
    def test_everything_is_larger(self):
        self.launch(QT_SCALE_FACTOR="1.0625")
        self.assert_larger_by(1.0625)

    def test_a_window_that_would_be_larger_than_the_screen_fits(self):
        self.launch(QT_SCALE_FACTOR="2")
        place = self.see_whole()
        # It takes what there is.
        self.assertGreater(place.width, SCREEN.width - 100)
        self.assertGreater(place.height, SCREEN.height - 160)

    def test_larger_fonts_enlarge_everything(self):
        self.launch(QT_FONT_DPI="102")
        self.assert_larger_by(1.0625)

    def test_a_desktop_that_asks_for_larger_text_gets_everything_larger(self):
        subprocess.run(["xrdb", "-merge"], input=b"Xft.dpi: 102\n", check=True)
        self.addCleanup(subprocess.run, ["xrdb", "-remove"], check=True)
        self.launch()
        self.assert_larger_by(1.0625)

    def test_a_remembered_window_that_is_too_large_by_now_fits(self):
        self.remember_frame((100, 60, 1100, 700))
        self.launch(QT_SCALE_FACTOR="1.5")
        self.see_whole()

    def test_the_keyboard_brings_what_is_beyond_the_edge_into_view(self):
        self.launch(QT_SCALE_FACTOR="2")
        self.see_whole()
        self.assertIsNone(self.screen.find(FIELD_ROLES))
        keyboard.press("ctrl+f")
        field = self.search_field
        self.assertTrue(field.is_focused)
        # Programs tell places in units of theirs.
        self.assertLessEqual((field.extents.x + field.extents.width) * 2, SCREEN.width)

    def test_a_window_of_a_screen_that_is_gone_comes_back_as_a_whole(self):
        self.remember_frame((1500, 100, 1000, 700))
        self.launch()
        self.assertEqual(tuple(self.see_whole()[2:]), (1000, 700))


class TestSeveralScreens(ScalingTestCase):
    def setUp(self):
        super().setUp()
        for name, place, output in (("LEFT", "+0+0", "screen"), ("RIGHT", "+1020+0", "none")):
            width = 1020 if name == "LEFT" else 260
            geometry = f"{width}/{width}x800/800{place}"
            subprocess.run(["xrandr", "--setmonitor", name, geometry, output], check=True, capture_output=True)
            self.addCleanup(subprocess.run, ["xrandr", "--delmonitor", name], check=True)

    def test_the_window_stays_on_the_main_screen(self):
        self.launch()
        place = self.see_whole()
        self.assertLessEqual(place.x + place.width, 1020)

    def test_the_overlay_goes_to_the_corner_of_the_main_screen(self):
        self.launch(QT_SCALE_FACTOR="1.25")
        appearances = Appearances(self)
        self.perform_action("overlay")
        self.see(Role.PANEL, "Shortcut overlay")
        place = windows.frame_free_geometry(appearances.of_process(self.program)[-1])
        self.assertAlmostEqual(place.y, CORNER_MARGIN * 1.25, delta=1)
        self.assertAlmostEqual(place.x + place.width, 1020 - CORNER_MARGIN * 1.25, delta=1)


def is_within(place, area):
    return (
        place.x >= area.x
        and place.y >= area.y
        and place.x + place.width <= area.x + area.width
        and place.y + place.height <= area.y + area.height
    )
