#!/usr/bin/env python3
"""./dev setup installs what is missing on systems that it knows, says so before, and names it on others.

The system's own programs are stand-ins that write down how they were called.
"""

import os
import pathlib
import stat
import subprocess
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))

STANDINS = {
    # Tells what "installed" lists.
    "dpkg-query": 'for name; do :; done\ngrep -qx -- "$name" "$STAGE/installed" && echo installed',
    # Knows what "archive" lists.
    "apt-cache": 'for name; do :; done\ngrep -x -- "$name" "$STAGE/archive" || exit 100',
    "apt-get": 'echo "apt-get $*" >>"$STAGE/calls"\ntail -n 1 "$STAGE/said" >>"$STAGE/announced"\necho "much progress"\n[ ! -e "$STAGE/broken" ]',
    "sudo": 'echo "sudo $1" >>"$STAGE/calls"\nexec "$@"',
    "id": 'cat "$STAGE/uid"',
}
NEEDED = ["tail", "bash", "env", "awk", "sort", "grep", "cat", "sed", "nproc", "dirname"]  # of the real system


class Setup(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.stage = pathlib.Path(folder.name)
        self.bin = self.stage / "bin"
        self.bin.mkdir()
        for name, body in STANDINS.items():
            self.add_program(name, body)
        for name in NEEDED:
            (self.bin / name).symlink_to(self.which(name))
        rows = [line.split() for line in (SOURCE / "tools/dev/packages").read_text().splitlines() if line[:1].strip("#")]
        self.packages = {group: [row[1] for row in rows if row[0] == group] for group in {row[0] for row in rows}}
        self.write("installed", [])
        self.write("archive", [name for names in self.packages.values() for choice in names for name in choice.split("|")])
        self.write("uid", ["0"])
        self.system("debian", "12")

    @staticmethod
    def which(name: str) -> str:
        for folder in os.environ["PATH"].split(":"):
            if os.access(f"{folder}/{name}", os.X_OK):
                return f"{folder}/{name}"
        raise FileNotFoundError(name)

    def add_program(self, name: str, body: str):
        path = self.bin / name
        path.write_text(f"#!/bin/sh\n{body}\n")
        path.chmod(path.stat().st_mode | stat.S_IXUSR)

    def write(self, name: str, lines: list[str]):
        (self.stage / name).write_text("".join(line + "\n" for line in lines))

    def system(self, name: str, version: str):
        self.write("os-release", [f"ID={name}", f'VERSION_ID="{version}"'])

    def run_setup(self, *groups: str) -> subprocess.CompletedProcess:
        env = {"PATH": str(self.bin), "STAGE": str(self.stage), "TARNWICK_OS_RELEASE": str(self.stage / "os-release")}
        command = [self.bin / "bash", SOURCE / "dev", "setup", *groups]
        said = self.stage / "said"
        with said.open("w") as errors:
            done = subprocess.run(command, env=env, stdout=subprocess.PIPE, stderr=errors, text=True, check=False)
        done.stderr = said.read_text()
        return done

    def calls(self) -> list[str]:
        path = self.stage / "calls"
        return path.read_text().splitlines() if path.exists() else []

    def test_what_is_missing_is_installed_after_an_update_and_told_before(self):
        self.write("installed", ["cmake", "ninja-build"])
        for system in (("debian", "12"), ("debian", "13"), ("ubuntu", "24.04")):
            for name in ("calls", "announced"):
                (self.stage / name).unlink(missing_ok=True)
            self.system(*system)
            done = self.run_setup("build")
            self.assertEqual(done.returncode, 0, done.stderr)
            update, install = self.calls()
            self.assertIn("update", update)
            self.assertIn("install -y --no-install-recommends", install)
            names = install.split("--no-install-recommends ")[1].split()
            expected = {choice.split("|")[0] for choice in self.packages["build"]} - {"cmake", "ninja-build"}
            self.assertEqual(set(names), expected)
            missing, installing = (self.stage / "announced").read_text().splitlines()
            self.assertTrue(missing.startswith("dev: missing: ccache g++ "), missing)
            self.assertEqual(installing, "dev: installing: " + " ".join(names))

    def test_nothing_is_asked_or_said_when_all_is_there(self):
        self.write("installed", [choice.split("|")[-1] for names in self.packages.values() for choice in names])
        done = self.run_setup(*self.packages)
        self.assertEqual((done.returncode, done.stdout + done.stderr, self.calls()), (0, "", []))

    def test_of_several_names_the_first_that_the_release_knows_is_taken(self):
        choice = next(choice for choice in self.packages["build"] if "|" in choice)
        first, second = choice.split("|")
        others = [name for name in self.packages["build"] if name != choice]
        self.write("installed", others)
        self.write("archive", [second])
        self.assertEqual(self.run_setup("build").returncode, 0)
        self.assertTrue(self.calls()[-1].endswith(" " + second))
        self.assertNotIn(first, self.calls()[-1].split())

    def test_a_plain_user_goes_through_sudo(self):
        self.write("uid", ["1000"])
        self.assertEqual(self.run_setup("test").returncode, 0)
        self.assertEqual([call.split()[0] for call in self.calls()], ["sudo", "apt-get", "sudo", "apt-get"])

    def test_without_root_and_sudo_the_names_are_told(self):
        self.write("uid", ["1000"])
        (self.bin / "sudo").unlink()
        done = self.run_setup("test")
        self.assertEqual((done.returncode, self.calls()), (1, []))
        self.assertIn("  lsof\n", done.stderr)

    def test_a_system_that_is_not_known_gets_the_names_and_no_installation(self):
        for system in (("debian", "11"), ("fedora", "41"), ("ubuntu", "22.04"), ("", "")):
            self.system(*system)
            done = self.run_setup("build", "test")
            self.assertEqual((done.returncode, self.calls()), (1, []))
            self.assertIn(f"{system[0]}:{system[1]}", done.stderr)
            for choice in self.packages["test"]:
                self.assertIn(f"  {choice.replace('|', ' or ')}\n", done.stderr)

    def test_there_what_is_found_otherwise_is_not_missing(self):
        self.system("fedora", "41")
        for name in ("python3", "lsof", "ps", "openssl"):
            self.add_program(name, "true")
        self.assertIn("  dbus\n", self.run_setup("test").stderr)
        self.assertNotIn("lsof", self.run_setup("test").stderr)
        self.add_program("dbus-daemon", "true")
        self.assertEqual(self.run_setup("test").returncode, 0)

    def test_a_failed_installation_is_a_failure(self):
        self.write("broken", [])
        done = self.run_setup("build")
        self.assertEqual(done.returncode, 1)
        self.assertIn("much progress\ndev: apt-get update failed", done.stderr)

    def test_a_group_that_is_not_known_is_refused(self):
        done = self.run_setup("biuld")
        self.assertEqual(done.returncode, 2)
        self.assertIn("biuld", done.stderr)


if __name__ == "__main__":
    unittest.main()
