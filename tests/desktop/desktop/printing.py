# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""A print server of its own, whose printers print into files."""

import os
import pathlib
import shutil
import subprocess
import tempfile

# An ordinary user's shell does not look there.
CUPSD = "/usr/sbin/cupsd"
LPADMIN = "/usr/sbin/lpadmin"

# What a printer cannot print at each edge of its paper, in points.
MARGIN = 18

# A printer that takes PDF as it is and has one kind of paper.
PRINTER = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "FILE.PPD"
*Manufacturer: "Paper"
*Product: "(File)"
*ModelName: "File"
*ShortNickName: "File"
*NickName: "File"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsVersion: 2.4
*cupsFilter2: "application/vnd.cups-pdf application/pdf 0 -"
*OpenUI *PageSize/Paper: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Only
*PageSize Only/Only: "<</PageSize[{width} {height}]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Only
*PageRegion Only/Only: "<</PageSize[{width} {height}]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Only
*ImageableArea Only/Only: "{margin} {margin} {right} {top}"
*DefaultPaperDimension: Only
*PaperDimension Only/Only: "{width} {height}"
"""

FILES = """ServerRoot {folder}
RequestRoot {folder}/spool
CacheDir {folder}/cache
StateDir {folder}/state
TempDir {folder}/temp
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
FileDevice Yes
Printcap
SystemGroup root
"""

SERVER = """Listen {folder}/cups.sock
Browsing Off
DefaultAuthType None
WebInterface No
JobRetryLimit 1
LogLevel warn
MaxLogSize 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  SubscriptionPrivateAccess all
  SubscriptionPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
"""


class PrintServer:
    """The server of a test; `environment` is for the programs that are to find it."""

    def __init__(self, test):
        self._test = test
        # What prepares the paper runs as a user of its own, who must get here.
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="print-server-"))
        self._folder.chmod(0o755)
        test.addCleanup(shutil.rmtree, self._folder)
        for name in ("spool", "cache", "state", "temp", "ppd", "ssl"):
            (self._folder / name).mkdir(parents=True)
        self._write("cupsd.conf", SERVER)
        self._write("cups-files.conf", FILES)
        self.environment = {"CUPS_SERVER": str(self._folder / "cups.sock")}
        self.process = test.start(
            CUPSD, "-f", "-c", str(self._folder / "cupsd.conf"), "-s", str(self._folder / "cups-files.conf")
        )
        test.addCleanup(self.process.terminate)
        test.wait_for(lambda: self._run("lpstat", "-r") is not None, "the print server answers")

    def add_printer(self, name, width, height):
        """Adds a printer with paper of that size in points, the standard printer from then on.

        Returns the file that it prints into.
        """
        paper, description = self._folder / f"{name}.pdf", self._folder / f"{name}.ppd"
        measures = {"width": width, "height": height, "margin": MARGIN}
        text = PRINTER.format(right=width - MARGIN, top=height - MARGIN, **measures)
        description.write_text(text, encoding="utf-8")
        # A server that has just started turns some away.
        printer = ("-p", name, "-E", "-v", f"file://{paper}", "-P", str(description))
        self._test.wait_for(lambda: self._run(LPADMIN, *printer) is not None, "the printer is there")
        self._test.wait_for(lambda: self._run(LPADMIN, "-d", name) is not None, "it is the standard printer")
        return paper

    def printed(self, paper):
        """Waits until nothing is to be printed any more and something was; returns the file."""
        self._test.wait_for(
            lambda: paper.exists() and self._run("lpstat", "-W", "not-completed", "-o") == "", "the paper comes out"
        )
        return paper

    def _write(self, name, text):
        (self._folder / name).write_text(text.format(folder=self._folder), encoding="utf-8")

    def _run(self, *command):
        done = subprocess.run(command, env={**os.environ, **self.environment}, capture_output=True, text=True)
        return done.stdout if done.returncode == 0 else None
