# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Once per start the program asks the maker which version is the latest, and tells of a newer one."""

import json
import os
import re
import unittest

from desktop import web
from desktop.accessibility import Role
from desktop.keyvora import KeyvoraTestCase

HOST = "keyvora.example"
PATH = "/downloads/keyvora/version.json"
PAGE = "https://keyvora.example/get?a=b&c='d'#e"

TITLE = re.compile("^(New version|Dostupná nová verze) ")
SENTENCE = re.compile(r"^You have version [0-9.]+\. Download the new one and drag it into Applications\.$")
CZECH_SENTENCE = re.compile(r"^Ty máš verzi [0-9.]+\. Stáhni novou a přetáhni do Applications\.$")

BROWSER_ENTRY = """[Desktop Entry]
Type=Application
Name=Stand-in
Exec={browser} %u
MimeType=x-scheme-handler/http;x-scheme-handler/https;
"""
BROWSER_CHOICE = """[Default Applications]
x-scheme-handler/http=stand-in.desktop
x-scheme-handler/https=stand-in.desktop
"""


def manifest(version, **others):
    return web.document(json.dumps({"version": version, "url": PAGE, **others}))


class UpdateTestCase(KeyvoraTestCase):
    def setUp(self):
        super().setUp()
        self.authority = web.Authority(self)
        self.server = web.Server(self, manifest("99.1"), self.authority.issue(HOST))
        self.proxy = web.Proxy(self, f"{HOST}:443", self.server)
        self._environment = {
            **web.without_web(self._environment),
            "https_proxy": self.proxy.address,
            "SSL_CERT_FILE": str(self.authority.certificate),
        }

    def see_banner(self, title, line=None):
        banner = self.see(Role.ALERT, title)
        if line is not None:
            self.see(Role.LABEL, re.compile(line))
        return banner

    def see_no_banner(self):
        """Waits until the program knows what there is to know, and nothing shows."""
        self.wait_for(lambda: self.proxy.connections, "the program asks")
        self.wait_for(lambda: not web.fetching(self.program.pid), "the program has its answer")
        self.watch(lambda: self.screen.find(Role.ALERT, TITLE), "a version is announced")

    def launch_once_more(self):
        """The program ends and starts again, and its window shows."""
        self.assertEqual(0, self.program.terminate())
        self.launch_resting()
        self.assertEqual(0, self.start_again())
        self.wait_until_active(self.program)
        self.see(Role.HEADING)


class BannerTest(UpdateTestCase):
    def test_tells_of_a_newer_version(self):
        self.launch()
        self.see_banner("New version 99.1 available", SENTENCE)
        self.see(Role.PUSH_BUTTON, "Skip")
        self.see(Role.PUSH_BUTTON, "Download")
        self.assertEqual([f"CONNECT {HOST}:443"], self.proxy.asked)
        self.assertEqual([PATH], self.server.paths)

    def test_speaks_czech(self):
        self.defaults.write({"appLanguage": "cs", "hasSeenOnboarding": True})
        self.launch()
        self.see_banner("Dostupná nová verze 99.1", CZECH_SENTENCE)
        self.see(Role.PUSH_BUTTON, "Stáhnout")
        self.click(self.see(Role.PUSH_BUTTON, "Přeskočit"))
        self.see_gone(Role.ALERT, TITLE)

    def test_tells_what_is_new(self):
        self.server.answer = manifest("99.1", notes="Rychlejší <b>hledání</b>.\nFaster.", unknown=[1])
        self.launch()
        self.see_banner("New version 99.1 available", "^Rychlejší <b>hledání</b>. Faster.$")

    def test_asks_once_per_start(self):
        self.launch()
        self.see_banner("New version 99.1 available")
        self.wait_for(lambda: not web.fetching(self.program.pid), "the helper is gone")
        self.assertEqual(0, self.start_again())
        self.click(self.row("First Aid"))
        self.see_page("First Aid")
        self.see_banner("New version 99.1 available")
        self.assertEqual([PATH], self.server.paths)
        self.launch_once_more()
        self.see_banner("New version 99.1 available")
        self.assertEqual([PATH, PATH], self.server.paths)

    def test_a_skipped_version_stays_away(self):
        self.launch()
        self.see_banner("New version 99.1 available")
        self.click(self.see(Role.PUSH_BUTTON, "Skip"))
        self.see_gone(Role.ALERT, TITLE)
        self.wait_for_stored(**{"Keyvora.dismissedUpdateVersion": "99.1"})
        self.launch_once_more()
        self.wait_for(lambda: len(self.server.paths) == 2, "the program asks again")
        self.see_no_banner()
        self.server.answer = manifest("99.1.1")
        self.launch_once_more()
        self.see_banner("New version 99.1.1 available")

    def test_works_without_a_mouse(self):
        self.launch()
        self.see_banner("New version 99.1 available")
        self.keys("ctrl+f", "Tab")
        self.see_focus("Skip")
        self.keys("Tab")
        self.see_focus("Download")
        self.keys("shift+Tab")
        self.see_focus("Skip")
        self.keys("Return")
        self.see_gone(Role.ALERT, TITLE)
        self.see_focus(self.shown_cards[0])

    def test_a_version_that_runs_already_is_no_news(self):
        self.server.answer = manifest("0.9.10")
        self.launch()
        self.see_no_banner()
        self.assertEqual([PATH], self.server.paths)


class DownloadTest(UpdateTestCase):
    def setUp(self):
        super().setUp()
        self.opened = self.directory / "opened"
        browser = self.directory / "browser"
        browser.write_text(f'#!/bin/sh\nprintf %s "$*" >"{self.opened}.new" && mv "{self.opened}.new" "{self.opened}"\n')
        browser.chmod(0o700)
        data, config = (self.directory / name for name in ("data", "config"))
        (data / "applications").mkdir()
        (data / "applications" / "stand-in.desktop").write_text(BROWSER_ENTRY.format(browser=browser))
        (config / "mimeapps.list").write_text(BROWSER_CHOICE)
        self._environment = {
            name: value for name, value in self._environment.items() if name not in ("BROWSER", "DEFAULT_BROWSER")
        }

    def test_opens_the_page_and_stays(self):
        self.launch()
        self.see_banner("New version 99.1 available")
        self.click(self.see(Role.PUSH_BUTTON, "Download"))
        self.wait_for(self.opened.exists, "the browser opens")
        self.assertEqual(PAGE, self.opened.read_text())
        self.see_banner("New version 99.1 available")
        self.assertNotIn("Keyvora.dismissedUpdateVersion", self.defaults.read())

    def test_offers_nothing_but_pages_of_the_web(self):
        self.server.answer = manifest("99.1", url=(self.directory / "browser").as_uri())
        self.launch()
        self.see_banner("New version 99.1 available")
        self.see(Role.PUSH_BUTTON, "Skip")
        self.assertIsNone(self.screen.find(Role.PUSH_BUTTON, "Download"))


class FailureTest(UpdateTestCase):
    def test_says_nothing_of_an_answer_that_is_none(self):
        whole = json.dumps({"version": "99.1", "url": PAGE})
        answers = {
            "304": web.document("", 304),
            "500": web.document(whole, 500),
            "no JSON": web.document("<html>99.1</html>"),
            "half": web.document(whole[:-1]),
            "a number": web.document(json.dumps({"version": 99.1, "url": PAGE})),
            "too large": web.document(whole + " " * 64 * 1024),
        }
        for name, answer in answers.items():
            with self.subTest(name):
                self.defaults.write({"hasSeenOnboarding": True})
                self.server.requests.clear()
                self.server.answer = answer
                self.launch()
                self.wait_for(lambda: self.server.paths, "the program asks")
                self.see_no_banner()
                self.assertEqual([PATH], self.server.paths)
                self.assertEqual(0, self.program.terminate())

    def test_says_nothing_of_a_server_that_is_another(self):
        other = web.Authority(self, "Other")
        self.launch(SSL_CERT_FILE=str(other.certificate))
        self.see_no_banner()
        self.assertEqual([], self.server.paths)

    def test_ends_at_once_while_it_asks(self):
        self.server.answer = lambda handler: handler.rfile.read()
        self.launch()
        self.wait_for(lambda: self.server.paths, "the program asks")
        helpers = web.fetching(self.program.pid)
        self.assertEqual(1, len(helpers))
        self.assertEqual(0, self.program.terminate())
        self.assertFalse(os.path.exists(f"/proc/{helpers[0]}"))


if __name__ == "__main__":
    unittest.main()
