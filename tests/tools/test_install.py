#!/usr/bin/env python3
"""What cmake --install puts where, into a prefix of its own: programs, manual pages, and what a desktop needs to show
the window in its menu with its icon."""

import configparser
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

import demo

BUILD = pathlib.Path(os.environ.get("TARNWICK_BUILD", demo.SOURCE / "build/dev"))
HAS_WINDOW = os.environ.get("TARNWICK_HAS_WINDOW", "ON") == "ON"
SIDES = (16, 24, 32, 48, 64, 128, 256)
# Of the categories that a desktop menu knows, those that this entry may name.
MAIN_CATEGORIES = {"AudioVideo", "Development", "Education", "Game", "Graphics", "Network", "Office", "Settings", "System", "Utility"}

TERMINAL = {"bin/tarnwick-cli", "share/man/man1/tarnwick-cli.1"}
WINDOW = {"bin/tarnwick"}
DESKTOP = {
    "share/applications/tarnwick.desktop",
    "share/man/man1/tarnwick.1",
    "share/icons/hicolor/scalable/apps/tarnwick.svg",
    *(f"share/icons/hicolor/{side}x{side}/apps/tarnwick.png" for side in SIDES),
}
LANGUAGES = re.findall(
    r'\{u"(\w+)"_s,\s*u"[^"]+"_s\}', (demo.SOURCE / "src/ui/i18n.cpp").read_text(encoding="utf-8")
)


def png_size(path: pathlib.Path) -> tuple[int, int]:
    head = path.read_bytes()[:24]
    if head[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError(f"{path} is no PNG")
    return struct.unpack(">II", head[16:24])


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = pathlib.Path(folder.name) / "prefix"
        cmake = os.environ.get("TARNWICK_CMAKE", "cmake")
        done = subprocess.run(
            [cmake, "--install", BUILD, "--prefix", cls.prefix], capture_output=True, text=True, check=False
        )
        if done.returncode != 0:
            raise RuntimeError(done.stderr)

    def setUp(self):
        self.desktop = HAS_WINDOW and sys.platform != "darwin"

    def entry(self) -> configparser.SectionProxy:
        if not self.desktop:
            self.skipTest("no window of a Linux desktop is built here")
        parser = configparser.ConfigParser(interpolation=None, strict=True)
        parser.optionxform = str
        parser.read(self.prefix / "share/applications/tarnwick.desktop", encoding="utf-8")
        self.assertEqual(parser.sections(), ["Desktop Entry"])
        return parser["Desktop Entry"]

    def test_these_files_and_no_others(self):
        found = {str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*") if not path.is_dir()}
        self.assertEqual(found, TERMINAL | (WINDOW if HAS_WINDOW else set()) | (DESKTOP if self.desktop else set()))

    def test_the_programs_run_where_they_are_installed(self):
        for program in sorted((self.prefix / "bin").iterdir()):
            self.assertTrue(os.access(program, os.X_OK), program)
        done = subprocess.run(
            [self.prefix / "bin/tarnwick-cli", "--version"], capture_output=True, text=True, check=False
        )
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_the_entry_starts_what_is_installed_under_an_icon_that_is(self):
        entry = self.entry()
        self.assertEqual((entry["Type"], entry["Name"], entry["Terminal"]), ("Application", "Tarnwick", "false"))
        self.assertTrue((self.prefix / "bin" / entry["Exec"].split()[0]).is_file())
        self.assertTrue((self.prefix / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file())
        # The window tells the desktop the file's name without its suffix, so that the two are known as one.
        program = (demo.SOURCE / "src/ui/shell/program.cpp").read_text(encoding="utf-8")
        self.assertIn('setDesktopFileName(u"tarnwick"_s)', program)
        self.assertEqual(entry["StartupWMClass"], "Tarnwick")  # under X11, the application's name

    def test_the_entry_has_one_place_in_a_menu(self):
        entry = self.entry()
        for key in ("Categories", "Keywords"):
            self.assertTrue(entry[key].endswith(";"), key)
        categories = entry["Categories"].rstrip(";").split(";")
        self.assertEqual(len(MAIN_CATEGORIES.intersection(categories)), 1)
        self.assertFalse(entry["Comment"].endswith("."))

    def test_the_entry_speaks_every_language_of_the_program(self):
        entry = self.entry()
        for code in LANGUAGES:
            if code == "en":
                continue
            for key in ("GenericName", "Comment", "Keywords"):
                text = entry[f"{key}[{code}]"]
                self.assertNotEqual(text, entry[key])
                self.assertEqual(text.endswith(";"), key == "Keywords", f"{key}[{code}]")
                self.assertFalse(text.endswith((".", "。")), f"{key}[{code}]")
        self.assertEqual(sum(key.startswith("Comment[") for key in entry), len(LANGUAGES) - 1)

    def test_the_entry_is_valid(self):
        self.entry()
        validate = shutil.which("desktop-file-validate")
        if not validate:
            self.skipTest("desktop-file-validate isn't installed")
        path = self.prefix / "share/applications/tarnwick.desktop"
        done = subprocess.run([validate, "--warn-kde", path], capture_output=True, text=True, check=False)
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))

    def test_each_icon_has_the_size_of_its_folder(self):
        if not self.desktop:
            self.skipTest("no window of a Linux desktop is built here")
        theme = self.prefix / "share/icons/hicolor"
        for side in SIDES:
            self.assertEqual(png_size(theme / f"{side}x{side}/apps/tarnwick.png"), (side, side))
        root = xml.etree.ElementTree.parse(theme / "scalable/apps/tarnwick.svg").getroot()
        self.assertEqual(root.tag, "{http://www.w3.org/2000/svg}svg")


if __name__ == "__main__":
    unittest.main()
