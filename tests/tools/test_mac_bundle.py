#!/usr/bin/env python3
"""The Info.plist of the macOS bundle, made by CMake's own means from its template, is what the system expects, and so is
its icon."""

import os
import pathlib
import plistlib
import re
import struct
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))
CMAKE = os.environ.get("TARNWICK_CMAKE", "cmake")
TEMPLATE = SOURCE / "resources/macos/Info.plist.in"
BUNDLE = SOURCE / "cmake/MacBundle.cmake"
ICONS = pathlib.Path(os.environ.get("TARNWICK_BUILD", "")) / "src/gallery/tarnwick-icons"

NO_LEAKS = {"ASAN_OPTIONS": "detect_leaks=0"}  # of the libraries that draw


def configured(**values: str) -> dict:
    with tempfile.TemporaryDirectory() as folder:
        made = pathlib.Path(folder) / "Info.plist"
        script = pathlib.Path(folder) / "make.cmake"
        script.write_text(f'configure_file("{TEMPLATE}" "{made}")\n', encoding="utf-8")
        options = [f"-D{name}={value}" for name, value in values.items()]
        subprocess.run([CMAKE, *options, "-P", script], check=True, capture_output=True)
        return plistlib.loads(made.read_bytes())


class Bundle(unittest.TestCase):
    def test_the_plist_says_what_it_was_given(self):
        plist = configured(
            MACOSX_BUNDLE_EXECUTABLE_NAME="Tarnwick",
            MACOSX_BUNDLE_ICON_FILE="Tarnwick.icns",
            MACOSX_BUNDLE_GUI_IDENTIFIER="example.tarnwick.Tarnwick",
            MACOSX_BUNDLE_BUNDLE_NAME="Tarnwick",
            MACOSX_BUNDLE_SHORT_VERSION_STRING="1.0.0",
            MACOSX_BUNDLE_BUNDLE_VERSION="1.0.0",
            CMAKE_OSX_DEPLOYMENT_TARGET="11.0",
        )
        self.assertEqual(plist["CFBundlePackageType"], "APPL")
        self.assertEqual(plist["CFBundleExecutable"], "Tarnwick")
        self.assertEqual(plist["CFBundleIconFile"], "Tarnwick.icns")
        self.assertEqual(plist["CFBundleIdentifier"], "example.tarnwick.Tarnwick")
        self.assertEqual(plist["CFBundleShortVersionString"], "1.0.0")
        self.assertEqual(plist["CFBundleVersion"], "1.0.0")
        self.assertEqual(plist["LSMinimumSystemVersion"], "11.0")
        self.assertIs(plist["NSHighResolutionCapable"], True)
        # As this system names the languages of the program.
        code = {"zh_CN": "zh-Hans", "zh_TW": "zh-Hant", "pt_BR": "pt-BR"}
        languages = (SOURCE / "src/ui/i18n.cpp").read_text(encoding="utf-8")
        known = re.findall(r'\{u"(\w+)"_s,\s*u"[^"]+"_s\}', languages)
        self.assertEqual(plist["CFBundleLocalizations"], [code.get(one, one) for one in known])

    def test_every_value_of_the_template_is_set(self):
        """A name that nothing sets would leave an empty text."""
        rules = BUNDLE.read_text(encoding="utf-8")
        given_by_cmake = {"MACOSX_BUNDLE_EXECUTABLE_NAME"}
        for name in set(re.findall(r"\$\{(\w+)\}", TEMPLATE.read_text(encoding="utf-8"))) - given_by_cmake:
            self.assertRegex(rules, rf"\b{name}\b", name)

    def test_the_icon_has_all_sizes_of_the_system(self):
        rules = BUNDLE.read_text(encoding="utf-8")
        sides = dict(reversed(pair) for pair in re.findall(r"\b(\d+):(\d+x\d+(?:@2x)?)", rules))
        wanted = {}
        for side in (16, 32, 128, 256, 512):
            wanted |= {f"{side}x{side}": str(side), f"{side}x{side}@2x": str(2 * side)}
        self.assertEqual(sides, wanted)

    @unittest.skipUnless(ICONS.is_file(), "the icons' program isn't built")
    def test_each_size_is_drawn(self):
        rules = BUNDLE.read_text(encoding="utf-8")
        asked = re.search(r"COMMAND tarnwick-icons \$\{theme\}([ \d]*)", rules).group(1).split()
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([ICONS, folder, *asked], check=True, env={**os.environ, **NO_LEAKS})
            for side in map(int, re.findall(r"\b(\d+):\d+x\d+", rules)):
                png = (pathlib.Path(folder) / f"{side}x{side}/apps/tarnwick.png").read_bytes()
                self.assertEqual(struct.unpack(">II", png[16:24]), (side, side))

    @unittest.skipUnless(ICONS.is_file(), "the icons' program isn't built")
    def test_what_is_no_size_is_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            for wrong in ("0", "-1", "large", "99999"):
                run = subprocess.run([ICONS, folder, wrong], capture_output=True, env={**os.environ, **NO_LEAKS})
                self.assertEqual(run.returncode, 2, wrong)
            self.assertEqual(os.listdir(folder), [])


if __name__ == "__main__":
    unittest.main()
