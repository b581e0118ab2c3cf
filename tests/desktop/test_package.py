# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""An installation is whole, the desktop can start the program from it, and the package of it is sound."""

import configparser
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import tempfile
import unittest

import gi

gi.require_version("GdkPixbuf", "2.0")
import tray_hosts  # noqa: E402
from gi.repository import GdkPixbuf, Gio, GLib  # noqa: E402

from desktop import web, windows  # noqa: E402
from desktop.accessibility import Role  # noqa: E402
from desktop.keyvora import BUS_NAME, WINDOW_TITLE, KeyvoraTestCase, is_resident  # noqa: E402

HOST = "keyvora.example"
OBJECT_PATH = "/app/keyvora/Keyvora"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
SOURCE = pathlib.Path(__file__).resolve().parents[2]
SYMBOLIC_ICON = "app.keyvora.Keyvora-symbolic"

stage = None


def build():
    return pathlib.Path(os.environ["KEYVORA_BINARY"]).parent


def setUpModule():
    global stage
    stage = pathlib.Path(tempfile.mkdtemp(prefix="stage-", dir=os.environ["HOME"]))
    unittest.addModuleCleanup(shutil.rmtree, stage)
    output_of("cmake", "--install", build(), "--prefix", stage)


def output_of(*command, **environment):
    """What a command writes; it must succeed."""
    done = subprocess.run(
        list(map(str, command)),
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
        env={**os.environ, **environment},
    )
    if done.returncode:
        raise AssertionError(f"{shlex.join(map(str, command))} failed with {done.returncode}:\n{done.stdout}")
    return done.stdout


def binaries(place):
    """The program and its libraries, in the build folder or an installation."""
    executable = next(path for path in (place / "keyvora", place / "bin" / "keyvora") if path.is_file())
    libraries = list(place.glob("lib/**/libkeyvora_*.so"))
    if not libraries:
        raise AssertionError(f"no libraries in {place}")
    return [executable, *libraries]


def groups(path):
    """The groups of a desktop entry or a service file."""
    parser = configparser.RawConfigParser(delimiters="=", interpolation=None)
    parser.optionxform = str
    parser.read_string(path.read_text(encoding="utf-8"))
    return parser


class Files(unittest.TestCase):
    """What an installation consists of, without the program itself."""

    @property
    def entry(self):
        return stage / "share" / "applications" / f"{BUS_NAME}.desktop"

    @property
    def service(self):
        return stage / "share" / "dbus-1" / "services" / f"{BUS_NAME}.service"

    def test_the_desktop_entry_is_valid(self):
        self.assertEqual("", output_of("desktop-file-validate", self.entry))

    def test_the_desktop_entry_speaks_czech_throughout(self):
        for name, group in groups(self.entry).items():
            for key in {"Name", "GenericName", "Comment", "Keywords"} & set(group):
                if group[key] != "Keyvora":
                    self.assertIn(f"{key}[cs]", group, name)

    def test_the_metainfo_is_valid(self):
        metainfo = stage / "share" / "metainfo" / f"{BUS_NAME}.metainfo.xml"
        output_of("appstreamcli", "validate", "--strict", "--no-net", metainfo)
        self.assertNotIn("@", metainfo.read_text(encoding="utf-8"))

    def test_the_manual_is_well_written(self):
        for page in ("man1", "cs/man1"):
            path = stage / "share" / "man" / page / "keyvora.1"
            self.assertEqual("", output_of("mandoc", "-T", "lint", "-W", "warning", path))
            formatted = output_of("man", "--warnings", "--local-file", path, LC_ALL="C.UTF-8", MANROFFOPT="")
            self.assertIn("defaults.json", formatted)
            self.assertNotIn("warning", formatted)

    def test_the_icon_is_there_in_every_size(self):
        icons = stage / "share" / "icons" / "hicolor"
        name = groups(self.entry)["Desktop Entry"]["Icon"]
        for size in SIZES:
            icon = GdkPixbuf.Pixbuf.new_from_file(str(icons / f"{size}x{size}" / "apps" / f"{name}.png"))
            self.assertEqual((size, size), (icon.get_width(), icon.get_height()))
        for path in (f"scalable/apps/{name}.svg", f"symbolic/apps/{SYMBOLIC_ICON}.svg"):
            self.assertTrue((icons / path).is_file(), path)

    def test_the_session_bus_finds_the_program(self):
        service = groups(self.service)["D-BUS Service"]
        self.assertEqual(BUS_NAME, service["Name"])
        self.assertEqual(str(stage / "bin" / "keyvora"), service["Exec"])
        self.assertTrue(os.access(service["Exec"], os.X_OK))

    def test_libraries_are_looked_for_in_own_folders_alone(self):
        # An empty entry is the folder that the program is started in, where anybody may have put anything.
        for place in (build(), stage):
            for path in binaries(place):
                dynamic = output_of("readelf", "--dynamic", "--wide", path)
                for entry in re.findall(r"Library r(?:un)?path: \[(.*)\]", dynamic):
                    for folder in entry.split(":"):
                        self.assertTrue(folder.startswith(("$ORIGIN", "/")), f"{path}: {entry}")
                        self.assertTrue(place == build() or folder.startswith("$ORIGIN"), f"{path}: {entry}")

    def test_the_place_is_that_of_the_target(self):
        image = pathlib.Path(tempfile.mkdtemp(prefix="image-", dir=os.environ["HOME"]))
        self.addCleanup(shutil.rmtree, image)
        output_of("cmake", "--install", build(), "--prefix", "/usr", DESTDIR=str(image))
        service = image / "usr" / self.service.relative_to(stage)
        self.assertEqual("/usr/bin/keyvora", groups(service)["D-BUS Service"]["Exec"])


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="package-", dir=os.environ["HOME"]))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        output_of("cpack", "--config", build() / "CPackConfig.cmake", "-B", cls.folder)
        (cls.package,) = cls.folder.glob("*.deb")

    def field(self, name):
        return output_of("dpkg-deb", "--field", self.package, name).strip()

    def test_lintian_has_nothing_to_say(self):
        self.assertEqual("", output_of("lintian", "--allow-root", "--fail-on", "error,warning", self.package))

    def test_each_override_says_why(self):
        lines = (SOURCE / "packaging" / "debian" / "lintian-overrides").read_text(encoding="utf-8").splitlines()
        for before, line in zip(["", *lines], lines):
            self.assertTrue(line.startswith("#") or before.startswith("#"), line)

    def test_needs_what_the_program_loads_while_it_runs(self):
        names = {re.split(r"[ (]", each.strip())[0] for each in self.field("Depends").split(",")}
        lines = (SOURCE / "scripts" / "packages").read_text(encoding="utf-8").splitlines()
        wanted = {line.split()[1] for line in lines if line.startswith("run ")}
        self.assertTrue(wanted)
        self.assertEqual(set(), wanted - names)

    def test_holds_the_whole_installation_and_its_papers(self):
        files = {
            re.sub(r"\.gz$", "", line.split()[-1].removeprefix("./usr/"))
            for line in output_of("dpkg-deb", "--contents", self.package).splitlines()
            if not line.startswith("d")
        }
        installed = {str(path.relative_to(stage)) for path in stage.rglob("*") if path.is_file()}
        papers = {path for path in installed if path.startswith("share/doc/keyvora/")}
        self.assertEqual({"LICENSE", "LICENSE.Apache-2.0", "NOTICE"}, {pathlib.Path(path).name for path in papers})
        debian_papers = {f"share/doc/keyvora/{name}" for name in ("changelog.Debian", "copyright")}
        debian_papers.add("share/lintian/overrides/keyvora")
        self.assertEqual(installed - papers | debian_papers, files)

    def test_runs_no_scripts_of_its_own(self):
        place = self.folder / "control"
        output_of("dpkg-deb", "--control", self.package, place)
        self.assertEqual({"control", "md5sums"}, {path.name for path in place.iterdir()})


class Started:
    """A program that somebody else started, known by its name on the session bus."""

    name = "keyvora"

    def __init__(self, pid):
        self.pid = pid

    @property
    def is_running(self):
        # Whoever ends it must be there to take note, or it stays as a mere number.
        try:
            state = pathlib.Path(f"/proc/{self.pid}/stat").read_text(encoding="utf-8").rpartition(")")[2].split()[0]
        except (FileNotFoundError, ProcessLookupError):
            return False
        return state != "Z"

    @property
    def libraries(self):
        return pathlib.Path(f"/proc/{self.pid}/maps").read_text(encoding="utf-8")


class InstalledProgram(KeyvoraTestCase):
    """The session bus, and what is started, know the installation and nothing that was built."""

    def setUp(self):
        super().setUp()
        self.binary = str(stage / "bin" / "keyvora")
        system = os.environ.get("XDG_DATA_DIRS") or "/usr/local/share:/usr/share"
        self._environment |= {
            "PATH": f"{stage / 'bin'}:{os.environ['PATH']}",
            "XDG_DATA_DIRS": f"{stage / 'share'}:{system}",
        }
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        names = ("LANG", "PATH", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "XDG_DATA_HOME", "XDG_STATE_HOME")
        self.call_bus("UpdateActivationEnvironment", "(a{ss})", {name: self._environment[name] for name in names})
        services = pathlib.Path(os.environ["XDG_DATA_HOME"], "dbus-1", "services")
        services.mkdir(parents=True, exist_ok=True)
        shutil.copy(stage / "share" / "dbus-1" / "services" / f"{BUS_NAME}.service", services)
        self.addCleanup((services / f"{BUS_NAME}.service").unlink)
        self.call_bus("ReloadConfig", "()")
        self.bus_log = pathlib.Path(os.environ["VIRTUAL_DESKTOP_LOGS"], "dbus-daemon.log")
        self.said_before = self.bus_log.read_text(encoding="utf-8")

    def call_bus(self, method, signature, *arguments):
        name = "org.freedesktop.DBus"
        return self.call(name, "/org/freedesktop/DBus", name, method, signature, *arguments)

    def call(self, name, path, interface, method, signature, *arguments):
        reply = self.bus.call_sync(
            name,
            path,
            interface,
            method,
            GLib.Variant(signature, arguments),
            None,
            Gio.DBusCallFlags.NONE,
            30_000,
            None,
        )
        return reply.unpack()

    def call_application(self, method, signature, *arguments):
        self.call(BUS_NAME, OBJECT_PATH, "org.freedesktop.Application", method, signature, *arguments)

    def has_begun(self):
        """Takes the program that the desktop started."""
        self.wait_for(is_resident, "the program is on the session bus", 30)
        self.program = Started(self.call_bus("GetConnectionUnixProcessID", "(s)", BUS_NAME)[0])
        self.assertEqual(self.binary, os.readlink(f"/proc/{self.program.pid}/exe"))
        self.addCleanup(self.has_ended)
        return self.program

    def has_ended(self):
        """Asks the program to end; it must, and must have said nothing."""
        if self.program.is_running:
            self.call_application("ActivateAction", "(sava{sv})", "quit", [], {})
        self.wait_for(lambda: not self.program.is_running, "the program ends")
        self.says_nothing()

    def says_nothing(self):
        # The bus itself tells of each program that it starts.
        said = self.bus_log.read_text(encoding="utf-8").removeprefix(self.said_before)
        own = [line for line in said.splitlines() if not line.startswith("dbus-daemon[")]
        self.assertEqual([], [line for line in own if "at-spi" not in line.lower()])

    def sees_its_window(self):
        self.window(self.program, WINDOW_TITLE)
        self.wait_until_active(self.program)
        loaded = self.program.libraries
        self.assertIn(str(stage), loaded)
        self.assertNotIn(f"{build()}/", loaded)

    def run_as_desktops_do(self, command):
        self.assertEqual("", output_of(*shlex.split(command), **self._environment))


class FromTheDesktopEntry(InstalledProgram):
    def setUp(self):
        super().setUp()
        self.entry = stage / "share" / "applications" / f"{BUS_NAME}.desktop"

    def test_its_command_starts_the_program_whole(self):
        authority = web.Authority(self)
        server = web.Server(self, web.document("{}"), authority.issue(HOST))
        proxy = web.Proxy(self, f"{HOST}:443", server)
        self._environment |= {"https_proxy": proxy.address, "SSL_CERT_FILE": str(authority.certificate)}
        launcher = self.start("gio", "launch", self.entry, environment=self._environment)
        self.assertEqual(0, launcher.wait())
        self.has_begun()
        self.sees_its_window()
        self.see_page("Library")
        # The helper is found, too.
        self.wait_for(lambda: proxy.asked, "the program asks for the latest version", 30)
        self.assertEqual("", launcher.output)

    def test_its_actions_reach_the_program_that_runs(self):
        self.defaults.write({"hasSeenOnboarding": True, "hasLaunchedBefore": True})
        self.launch_resting()
        entry = groups(self.entry)
        self.run_as_desktops_do(entry["Desktop Action practice"]["Exec"])
        self.wait_until_active(self.program)
        self.see_page("Practice")
        self.run_as_desktops_do(entry["Desktop Action overlay"]["Exec"])
        self.see(Role.PANEL, "Shortcut overlay")
        self.run_as_desktops_do(entry["Desktop Action quit"]["Exec"])
        self.assertEqual(0, self.program.wait())

    def test_its_windows_belong_to_it(self):
        self.launch()
        window = self.window(self.program)
        classes = output_of("xprop", "-id", window, "WM_CLASS")
        self.assertIn(f'"{groups(self.entry)["Desktop Entry"]["StartupWMClass"]}"', classes)


class FromTheSessionBus(InstalledProgram):
    def setUp(self):
        super().setUp()
        self.defaults.write({"hasSeenOnboarding": True, "hasLaunchedBefore": True})

    def test_activation_starts_the_program_and_shows_its_window(self):
        self.call_application("Activate", "(a{sv})", {})
        self.has_begun()
        self.sees_its_window()
        self.see_page("Library")

    def test_an_action_starts_the_program_and_is_done(self):
        self.call_application("ActivateAction", "(sava{sv})", "practice", [], {})
        self.has_begun()
        self.sees_its_window()
        self.see_page("Practice")

    def test_the_overlay_comes_without_the_window(self):
        self.call_application("ActivateAction", "(sava{sv})", "overlay", [], {})
        self.has_begun()
        self.see(Role.PANEL, "Shortcut overlay")
        self.assertEqual([], windows.of_process(self.program.pid))

    def test_quitting_a_program_that_does_not_run_leaves_nothing_running(self):
        self.defaults.write({})
        self.call_application("ActivateAction", "(sava{sv})", "quit", [], {})
        self.wait_for(lambda: not is_resident() and not self.running(), "nothing runs")
        # Not even a first start has taken place.
        self.assertEqual({}, self.defaults.read())
        self.says_nothing()

    def running(self):
        """The processes of the installation."""
        found = []
        for exe in pathlib.Path("/proc").glob("[0-9]*/exe"):
            try:
                found += [exe.parent.name] if os.readlink(exe).startswith(f"{stage}/") else []
            except OSError:
                continue
        return found


class InTheTray(InstalledProgram):
    def setUp(self):
        super().setUp()
        self.defaults.write({"hasSeenOnboarding": True, "hasLaunchedBefore": True})

    def icon_name(self):
        arguments = ("org.kde.StatusNotifierItem", "IconName")
        properties = "org.freedesktop.DBus.Properties"
        return self.call(BUS_NAME, "/StatusNotifierItem", properties, "Get", "(ss)", *arguments)[0]

    def test_the_icon_is_named_where_themes_have_it(self):
        self.launch_resting()
        self.assertEqual(SYMBOLIC_ICON, self.icon_name())

    def test_the_icon_is_a_picture_where_no_theme_has_it(self):
        self.launch_resting(XDG_DATA_DIRS=str(self.directory))
        self.assertEqual("", self.icon_name())

    def test_the_icon_comes_up(self):
        host = tray_hosts.start_trayer()
        self.addCleanup(host.wait)
        self.addCleanup(host.kill)
        self.launch_resting()
        tray_hosts.find_tray_icon(host)


del InstalledProgram

if __name__ == "__main__":
    unittest.main()
