#!/usr/bin/env python3
"""./dev run opens the window where there is a display and scans from the terminal where there is none, on the real home
folder or on a demo home that is gone afterwards.

The programs and the tools that build them are stand-ins that write down how they were called.
"""

import os
import pathlib
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))

# Runs the verb in a root of its own, with nothing installed or built, on a system of this name.
SCRIPT = """
root=$1; shift
cd "$root"
say() { echo "dev: $*" >&2; }
fail() { say "$*"; exit 1; }
uname() { echo "$SYSTEM"; }
. "$SOURCE/tools/dev/run.bash"
setup() { echo "setup $*" >>calls; }
build() { echo "build $*" >>calls; }
run "$@"
"""

PROGRAM = """#!/bin/bash
echo "${0##*/} [$*] $TARNWICK_HOST" >>calls
echo "$HOME" >home
[[ -z ${FAILING-} ]]
"""

# DIR [--host HOST]
DEMO_HOME = """#!/bin/bash
mkdir -p "$1/home"
echo "HOME=$1/home"
echo "TARNWICK_HOST=${3:-linux}"
"""


class Run(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in ("app/tarnwick", "cli/tarnwick-cli"):
            program = self.root / "build/release/src" / name
            program.parent.mkdir(parents=True)
            program.write_text(PROGRAM)
            program.chmod(0o755)
        (self.root / "tools").mkdir()
        maker = self.root / "tools/demo-home"
        maker.write_text(DEMO_HOME)
        maker.chmod(0o755)

    def run_verb(self, *arguments: str, display: bool, system="Linux", **more: str) -> subprocess.CompletedProcess:
        env = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        env.update(SOURCE=str(SOURCE), SYSTEM=system, HOME="/real/home", TARNWICK_HOST="")
        env.update({"WAYLAND_DISPLAY": "wayland-0"} if display else {}, **more)
        command = ["bash", "-euo", "pipefail", "-c", SCRIPT, "dev", str(self.root), *arguments]
        return subprocess.run(command, env=env, capture_output=True, text=True, check=False)

    def calls(self) -> list[str]:
        return (self.root / "calls").read_text().splitlines()

    def home(self) -> str:
        return (self.root / "home").read_text().strip()

    def test_the_window_opens_on_the_real_home_where_there_is_a_display(self):
        done = self.run_verb(display=True)
        self.assertEqual((done.returncode, done.stdout), (0, ""), done.stderr)
        self.assertEqual(self.calls(), ["setup build", "build release tarnwick", "tarnwick [] "])
        self.assertEqual(self.home(), "/real/home")

    def test_a_mac_has_a_display_without_saying_so(self):
        self.run_verb(display=False, system="Darwin")
        self.assertEqual(self.calls()[-1], "tarnwick [] ")

    def test_without_a_display_it_scans_and_says_why(self):
        done = self.run_verb(display=False)
        self.assertEqual(self.calls(), ["setup build", "build release tarnwick-cli", "tarnwick-cli [scan] "])
        self.assertIn("there is no display, so this is a scan of home folder /real/home", done.stderr)

    def test_arguments_are_for_the_terminal_even_where_there_is_a_display(self):
        self.run_verb("--", "clean", "--dry-run", display=True)
        self.assertEqual(self.calls()[-1], "tarnwick-cli [clean --dry-run] ")

    def test_a_demo_is_a_home_of_its_own_and_is_gone_afterwards(self):
        for arguments, host in ((["--demo"], "linux"), (["--demo", "mac"], "mac"), (["--demo", "linux"], "linux")):
            done = self.run_verb(*arguments, display=True)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(self.calls()[-1], f"tarnwick [] {host}")
            self.assertIn("setup build demo", self.calls())
            self.assertRegex(self.home(), r"^/var/tmp/tarnwick-demo-\w+/")
            self.assertFalse(os.path.exists(self.home()))
            self.assertFalse(os.path.exists("/".join(self.home().split("/")[:4])))

    def test_a_demo_is_gone_after_a_failure_too_which_is_the_verbs(self):
        done = self.run_verb("--demo", display=True, FAILING="yes")
        self.assertEqual(done.returncode, 1)
        self.assertFalse(os.path.exists(self.home()))

    def test_a_word_that_it_does_not_know_does_nothing(self):
        done = self.run_verb("--demonstrate", display=True)
        self.assertEqual(done.returncode, 2)
        self.assertFalse((self.root / "calls").exists())


if __name__ == "__main__":
    unittest.main()
