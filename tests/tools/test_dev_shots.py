#!/usr/bin/env python3
"""./dev shots takes the sheet in both metric sets and at all scales, then the views, and ends where one fails.

The gallery and the tools that build it are stand-ins that write down how they were called.
"""

import os
import pathlib
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))

# Runs the verb in a root of its own, with nothing installed or built.
SCRIPT = """
root=$1; shift
cd "$root"
say() { echo "dev: $*" >&2; }
. "$SOURCE/tools/dev/setup.bash"
. "$SOURCE/tools/dev/shots.bash"
setup() { echo "setup $*" >>calls; }
build() { echo "build $*" >>calls; }
enter_demo() { echo "demo $*" >>calls; }
shots "$@"
"""

GALLERY = """#!/bin/bash
echo "$TARNWICK_LOOK $QT_SCALE_FACTOR $TARNWICK_LANG ${FONTCONFIG_FILE##*/} [${DBUS_SESSION_BUS_ADDRESS-}] $*" >>calls
echo "what the gallery says"
[[ $QT_SCALE_FACTOR != "${BROKEN_AT-}" && $1 != "${BROKEN_DO-}" ]]
"""


class Shots(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "root"
        program = self.root / "build/dev/src/gallery/tarnwick-gallery"
        program.parent.mkdir(parents=True)
        program.write_text(GALLERY)
        program.chmod(0o755)
        catalogues = self.root / "resources/i18n"
        catalogues.mkdir(parents=True)
        for code in ("de", "en", "pt_BR"):
            (catalogues / f"tarnwick_{code}.ts").touch()
        self.caller = pathlib.Path(folder.name) / "caller"
        self.caller.mkdir()

    def shots(self, *arguments: str, **environment: str) -> subprocess.CompletedProcess:
        env = {**os.environ, "SOURCE": str(SOURCE), "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere", **environment}
        command = ["bash", "-euo", "pipefail", "-c", SCRIPT, "dev", str(self.root), *arguments]
        return subprocess.run(command, cwd=self.caller, env=env, capture_output=True, text=True, check=False)

    def calls(self) -> list[str]:
        return (self.root / "calls").read_text().splitlines()

    def test_every_metric_set_and_scale_is_taken_without_the_desktop(self):
        done = self.shots()
        self.assertEqual(done.returncode, 0, done.stderr)
        target = f"--write {self.root}/build/shots"
        self.assertEqual(
            self.calls(),
            ["setup build shots demo", "build dev tarnwick-gallery", "demo linux"]
            + [f"{look} {scale} en fonts.conf [] {target}" for look in ("mac", "win") for scale in ("1", "1.5", "2")]
            + [f"mac 1 en fonts.conf [] --write-views {self.root}/build/shots"],
        )
        self.assertNotIn("what the gallery says", done.stdout + done.stderr)
        self.assertIn(f"the pictures lie in {self.root}/build/shots", done.stderr)

    def test_a_folder_is_seen_from_where_the_verb_is_called(self):
        self.shots("pictures")
        self.assertTrue(self.calls()[-1].endswith(f"--write-views {self.caller}/pictures"), self.calls())
        self.shots("/elsewhere")
        self.assertTrue(self.calls()[-1].endswith("--write-views /elsewhere"), self.calls())

    def test_the_language_is_the_one_that_is_asked_for(self):
        for arguments in (("--lang", "pt_BR"), ("--lang", "pt_BR", "pictures"), ("pictures", "--lang", "pt_BR")):
            (self.root / "calls").unlink(missing_ok=True)
            done = self.shots(*arguments)
            self.assertEqual(done.returncode, 0, done.stderr)
            taken = [call for call in self.calls() if call.startswith(("mac ", "win "))]
            self.assertEqual(len(taken), 7)
            self.assertEqual({call.split()[2] for call in taken}, {"pt_BR"})
            folder = self.caller / "pictures" if "pictures" in arguments else self.root / "build/shots"
            self.assertTrue(taken[-1].endswith(f"--write-views {folder}"), taken)

    def test_a_call_that_makes_no_sense_takes_nothing(self):
        for arguments, wrong in (
            (("--lang", "pt"), "there is no language pt; there are: de en pt_BR"),
            (("--lang", ""), "there is no language ; there are: de en pt_BR"),
            (("--lang", "."), "there is no language .;"),
            (("--lang",), "--lang needs the code of a language"),
            (("--loud",), "shots knows no --loud"),
            (("here", "there"), "shots takes one folder"),
        ):
            done = self.shots(*arguments)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertIn(wrong, done.stderr)
            self.assertFalse((self.root / "calls").exists(), arguments)

    def test_the_first_that_fails_is_told_and_the_last(self):
        done = self.shots(BROKEN_AT="1.5")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(len(self.calls()), 5)
        self.assertIn("mac metrics at scale 1.5 failed", done.stderr)
        self.assertIn("what the gallery says", done.stderr)

    def test_views_that_fail_are_told(self):
        done = self.shots(BROKEN_DO="--write-views")
        self.assertEqual(done.returncode, 1)
        self.assertIn("the views failed", done.stderr)
        self.assertNotIn("the pictures lie", done.stderr)


if __name__ == "__main__":
    unittest.main()
