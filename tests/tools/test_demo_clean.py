#!/usr/bin/env python3
# ctest: RESOURCE_LOCK clean
# ctest: LABELS journey
# ctest: TIMEOUT 300
"""tarnwick-cli over the demo homes of both hosts: what it measures, removes, keeps and writes down, judged from outside."""

import collections
import json
import os
import pathlib
import re
import shutil
import stat
import subprocess
import sys
import time
import unittest

import demo

CLI = os.environ.get("TARNWICK_CLI", str(demo.SOURCE / "build/dev/src/cli/tarnwick-cli"))
ALL = "temp,appcache,browser,logs,thumbs,update,dev,trash"
SAFE = ["temp", "appcache", "browser", "logs", "thumbs"]
LOG_LINE = re.compile(r"Tarnwick cleanup |Mode: |Selected: |== |EXCLUDED |SKIPPED  |BUSY     |TRASHED  |DELETED  |Freed |$")
BUSY = "Another cleanup is already running."
# What the tester has outside of the demo, and the catalogue would find: crash reports, Trashes of further volumes.
OUTSIDE = [
    f"--exclude={rule}"
    for rule in ("/var/crash", f".Trash-{os.geteuid()}", f"/.Trash/{os.geteuid()}", f"/**/.Trash/{os.geteuid()}")
]


def snapshot(top) -> dict[bytes, os.stat_result]:
    """Every path below @p top with its status, as bytes."""
    found = {}
    for folder, folders, files in os.walk(os.fsencode(top)):
        found.update({path: os.lstat(path) for path in (os.path.join(folder, name) for name in folders + files)})
    return found


def below(path: bytes, folder: bytes) -> bool:
    return path.startswith(folder + b"/")


def held(files: dict[bytes, os.stat_result], folder: bytes) -> tuple[int, int]:
    """Bytes on disk and files at or below a path: folders count nothing, a link is a file without bytes, and the hard
    links of one file are one."""
    status = {}
    for path, one in files.items():
        if (path == folder or below(path, folder)) and not stat.S_ISDIR(one.st_mode):
            status[one.st_ino] = one
    return sum(one.st_blocks * 512 for one in status.values() if stat.S_ISREG(one.st_mode)), len(status)


class Journey:
    """The tests of one host."""

    host = ""
    chrome = ""  # the category's item that belongs to a running browser here, relative to the home folder
    open_file = ""  # a folder of which one file is held open

    def setUp(self):
        self.home = demo.DemoHome(self.host)
        self.addCleanup(self.home.__exit__)
        self.env = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", **self.home.env}

    def cli(self, *arguments: str) -> subprocess.CompletedProcess:
        """Runs the program to its end; again while a clean of another checkout holds the user's lock."""
        arguments = (arguments[0], *OUTSIDE, *arguments[1:])
        deadline = time.monotonic() + 60
        while True:
            done = subprocess.run(
                [CLI, *arguments], env=self.env, capture_output=True, text=True, check=False, stdin=subprocess.DEVNULL
            )
            if BUSY not in done.stderr or time.monotonic() > deadline:
                return done

    def json(self, *arguments: str) -> dict:
        done = self.cli(*arguments, "--json")
        self.assertIn(done.returncode, (0, 1), done.stderr)
        return json.loads(done.stdout)

    def scan(self, *arguments: str) -> dict[str, dict]:
        """The scan's items by path, none of which lies outside the demo."""
        scanned = self.json("scan", *arguments)
        items = {item["path"]: item for category in scanned["categories"] for item in category["items"]}
        for path in items:
            self.assertTrue(path.startswith(f"{self.home.top}/"), path)
        return items

    def path(self, relative: str) -> str:
        return f"{self.env['HOME']}/{relative}"

    def stays(self) -> list[bytes]:
        """What must stay below items, and with it the folders that lead there."""
        return [os.fsencode(path) for path in self.home.expected["stays"]]

    def expected_gone(self, before: dict, categories: list[str], kept: list[bytes]) -> set[bytes]:
        """What a clean of these categories removes from @p before, where @p kept (with all below) must stay."""
        gone = set()
        for category in categories:
            for item in self.home.expected["items"][category]:
                top = os.fsencode(item["path"])
                gone |= {path for path in before if below(path, top) or (path == top and not item["wholeRoot"])}
        return {
            path for path in gone if not any(path == one or below(path, one) or below(one, path) for one in kept)
        }

    def log(self, report: dict) -> list[str]:
        lines = pathlib.Path(report["logPath"]).read_text(encoding="utf-8").splitlines()
        for line in lines:
            self.assertRegex(line, LOG_LINE)  # so no name broke its line
        return lines

    def own_files(self, report: dict) -> set[bytes]:
        """What the program itself may make: its log and its settings, what it remembers of the rules, with the folders above them."""
        made = [pathlib.Path(report["logPath"]), pathlib.Path(self.path(".config/Tarnwick/Tarnwick.conf"))]
        made.append(made[-1].with_name("Tarnwick-rules.json"))  # what it remembers of the rules
        return {os.fsencode(path) for one in made for path in (one, *one.parents)}

    # ---- scan

    def test_a_scan_lists_every_item_with_exactly_its_blocks(self):
        files = snapshot(self.home.top)
        scanned = self.json("scan")
        self.assertEqual((scanned["host"], scanned["cancelled"]), (self.host, False))
        self.assertEqual([category["id"] for category in scanned["categories"]], ALL.split(","))
        total = 0
        for category in scanned["categories"]:
            expected = {(item["path"], item["wholeRoot"]) for item in self.home.expected["items"][category["id"]]}
            self.assertEqual({(item["path"], item["wholeRoot"]) for item in category["items"]}, expected)
            for item in category["items"]:
                self.assertEqual((item["bytes"], item["files"]), held(files, os.fsencode(item["path"])), item["path"])
            self.assertEqual(category["bytes"], sum(item["bytes"] for item in category["items"]))
            total += category["bytes"]
        self.assertEqual(scanned["bytes"], total)
        self.assertGreater(total, 50e6)

    def test_a_scan_and_a_dry_run_touch_nothing(self):
        before = snapshot(self.home.top)
        self.scan()
        report = self.json("clean", "--dry-run", "--only", ALL)
        self.assertTrue(report["dryRun"])
        after = snapshot(self.home.top)
        self.assertEqual(set(after) - self.own_files(report), set(before) - self.own_files(report))
        for path, status in before.items():
            self.assertEqual((after[path].st_ino, after[path].st_size), (status.st_ino, status.st_size), path)

    def test_without_yes_and_without_a_terminal_nothing_happens(self):
        before = snapshot(self.home.top)
        self.assertEqual(self.cli("clean").returncode, 2)
        self.assertEqual(set(snapshot(self.home.top)), set(before))

    # ---- clean

    def check_clean(self, categories: list[str], kept: list[bytes], *arguments: str) -> dict:
        """Cleans by deletion and holds the disk, the report and the log against what must have happened."""
        before = snapshot(self.home.top)
        report = self.json("clean", "--yes", "--delete", *arguments)
        after = snapshot(self.home.top)
        gone = set(before) - set(after)
        expected = self.expected_gone(before, categories, kept)
        extra = self.trash_info(before) if "trash" in categories else set()
        self.assertEqual(gone - extra, expected)
        self.assertEqual(gone & extra, extra)
        self.assertEqual(set(after) - set(before) - self.own_files(report), set())
        self.assertEqual(report["cleanedIds"], categories)
        freed = removed = 0
        for category in categories:
            for item in self.home.expected["items"][category]:
                was, now = (held(files, os.fsencode(item["path"])) for files in (before, after))
                freed, removed = freed + was[0] - now[0], removed + was[1] - now[1]
        self.assertEqual((report["freedBytes"], report["removedFiles"]), (freed, removed))
        return report

    def trash_info(self, before: dict) -> set[bytes]:
        """The info files of what lies in the Trash, which go with it."""
        folder = os.fsencode(self.path(".local/share/Trash/info"))
        return {path for path in before if below(path, folder)}

    def test_a_clean_takes_what_is_safe_and_leaves_what_must_stay(self):
        report = self.check_clean(SAFE, self.stays())
        lines = self.log(report)
        for path, reason in self.home.expected["stays"].items():
            self.assertIn(f"EXCLUDED {path}" if reason == "excluded" else f"SKIPPED  {path}  ({reason})", lines)
        self.assertEqual((report["skipped"], report["runningApps"]), (1, []))
        self.assertEqual(len([line for line in lines if line.startswith("== ")]), len(SAFE))
        measured = [line for line in lines if line.startswith("DELETED  ")]
        self.assertEqual(len(measured), sum(len(self.home.expected["items"][category]) for category in SAFE))
        self.assertRegex(lines[-1], rf"^Freed .+, removed {report['removedFiles']} files, skipped 1\.$")

    def test_named_categories_are_all_cleaned(self):
        report = self.check_clean(ALL.split(","), self.stays(), "--only", ALL)
        self.assertEqual(set(self.scan()), self.leftovers())
        self.assertEqual(report["skipped"], 1)

    def leftovers(self) -> set[str]:
        """Items that a second scan still lists, because of what stayed below them; and the log's folder on a Mac."""
        items = [item["path"] for group in self.home.expected["items"].values() for item in group]
        left = {path for path in items if any(stay.startswith(path + "/") for stay in self.home.expected["stays"])}
        return left | ({self.path("Library/Logs/Tarnwick")} if self.host == "mac" else set())

    def test_what_is_running_open_or_excluded_stays_and_the_log_says_why(self):
        program = self.home.top / "bin/chrome"
        program.parent.mkdir()
        shutil.copy(shutil.which("sleep"), program)
        running = subprocess.Popen([program, "600"])
        self.addCleanup(running.wait)
        self.addCleanup(running.kill)
        browser = self.path(self.chrome)
        folder = self.path(self.open_file)
        held_open = open(sorted(pathlib.Path(folder).rglob("*"))[-1], "rb")
        self.addCleanup(held_open.close)
        excluded = self.home.expected["items"]["appcache"][0]["path"]

        owners = {path: item["owner"] for path, item in self.scan().items() if item["owner"]}
        self.assertEqual(owners[browser], "Google Chrome")
        kept = [*self.stays(), os.fsencode(excluded), os.fsencode(held_open.name), *map(os.fsencode, owners)]
        report = self.check_clean(SAFE, kept, "--exclude", excluded)
        lines = self.log(report)
        self.assertIn(f"SKIPPED  {browser}  (Google Chrome is running)", lines)
        self.assertIn(f"SKIPPED  {held_open.name}  (open in an app)", lines)
        self.assertEqual(sorted(report["runningApps"]), sorted(set(owners.values())))
        self.assertEqual(report["skipped"], 2)

    def test_moving_to_the_trash_loses_no_file(self):
        if sys.platform == "darwin":
            self.skipTest("there the Trash is the system's own, not the demo's")
        before = snapshot(self.home.top)
        report = self.json("clean", "--yes", "--trash")
        after = snapshot(self.home.top)
        gone = set(before) - set(after)
        self.assertEqual(gone, self.expected_gone(before, SAFE, self.stays()))
        inodes = {status.st_ino for status in after.values()}
        lost = [path for path in gone if not stat.S_ISDIR(before[path].st_mode) and before[path].st_ino not in inodes]
        self.assertEqual(lost, [])
        trash = os.fsencode(self.env["XDG_DATA_HOME"]) + b"/Trash"
        came = {path for path in set(after) - set(before) if os.path.dirname(path) == trash + b"/files"}
        self.assertTrue(came)
        for path in came:
            self.assertIn(trash + b"/info/" + os.path.basename(path) + b".trashinfo", after)
        counted = collections.Counter(line.split(" ")[0] for line in self.log(report))
        self.assertEqual(counted["TRASHED"], sum(len(self.home.expected["items"][category]) for category in SAFE))
        self.assertEqual(counted["DELETED"], 0)


class Linux(Journey, unittest.TestCase):
    host = "linux"
    chrome = ".cache/google-chrome"
    open_file = ".cache/mesa_shader_cache"

    def test_a_folder_that_somebody_works_in_is_not_even_listed(self):
        folder = self.home.env["TMPDIR"] + "/pip-unpack-9sk2lq"
        worker = subprocess.Popen(["sleep", "600"], cwd=folder)
        self.addCleanup(worker.wait)
        self.addCleanup(worker.kill)
        self.assertNotIn(folder, self.scan())
        self.json("clean", "--yes", "--delete", "--only", "temp")
        self.assertTrue(os.listdir(folder))


class Mac(Journey, unittest.TestCase):
    host = "mac"
    chrome = "Library/Caches/Google/Chrome"
    open_file = "Library/Caches/net.thing"


if __name__ == "__main__":
    unittest.main()
