# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The tray icon in real status areas."""

import unittest

import tray_hosts
from tray_testcase import TrayTestCase


class AnyHost:
    """What holds in every status area; the classes below say in which."""

    start_host = None

    def test_the_icon_is_there_when_the_host_was_there_first(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        self.open_panel(host)

    def test_the_icon_appears_when_the_host_comes_later(self):
        self.launch_resting()
        host = self.host(type(self).start_host)
        self.open_panel(host)

    def test_the_icon_comes_back_when_the_host_starts_again(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        tray_hosts.find_tray_icon(host)
        self.end(host)
        again = self.host(type(self).start_host)
        self.open_panel(again)

    def test_the_panel_is_beside_the_icon(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        icon = self.click_icon(host)
        self.see_panel()
        self.see_beside(icon, "top")

    def test_a_start_by_a_person_opens_no_window_where_the_icon_can_be_seen(self):
        host = self.host(type(self).start_host)
        self.launch_resting()
        tray_hosts.find_tray_icon(host)
        self.assertEqual(0, self.program.terminate())
        self.launch_resting(DESKTOP_STARTUP_ID="launcher-0-desktop_TIME0")
        self.open_panel(host)


class XfcePanelTest(AnyHost, TrayTestCase):
    start_host = staticmethod(tray_hosts.start_xfce_panel)


class TrayerTest(AnyHost, TrayTestCase):
    start_host = staticmethod(tray_hosts.start_trayer)


class Tint2Test(AnyHost, TrayTestCase):
    start_host = staticmethod(tray_hosts.start_tint2)


del TrayTestCase

if __name__ == "__main__":
    unittest.main()
