#!/usr/bin/env python3
"""tools/demo-home builds what it says, and never builds over what is somebody else's."""

import os
import pathlib
import stat
import tempfile
import time
import unittest

import demo

CATEGORIES = ["temp", "appcache", "browser", "logs", "thumbs", "update", "dev", "trash"]


def everything(top: pathlib.Path) -> dict[bytes, os.stat_result]:
    """Every path below @p top, as bytes, with its status."""
    found = {}
    for folder, folders, files in os.walk(os.fsencode(top)):
        found.update({path: os.lstat(path) for path in (os.path.join(folder, name) for name in folders + files)})
    return found


class Contents(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.homes = {host: demo.DemoHome(host) for host in demo.HOSTS}
        cls.files = {host: everything(home.top) for host, home in cls.homes.items()}
        for home in cls.homes.values():
            cls.addClassCleanup(home.__exit__)

    def test_every_category_has_items_that_hold_something(self):
        for host, home in self.homes.items():
            self.assertEqual(list(home.expected["items"]), CATEGORIES)
            for category, items in home.expected["items"].items():
                for item in items:
                    path = os.fsencode(item["path"])
                    held = [s for p, s in self.files[host].items() if p == path or p.startswith(path + b"/")]
                    self.assertGreater(sum(s.st_blocks for s in held if not stat.S_ISDIR(s.st_mode)), 0, (host, category, item))

    def test_what_must_stay_below_an_item_is_there(self):
        for host, home in self.homes.items():
            self.assertEqual(sorted(home.expected["stays"].values()), ["excluded", "protected app data"])
            for path in home.expected["stays"]:
                self.assertIn(os.fsencode(path), self.files[host])

    def test_the_environment_is_whole_and_inside(self):
        for host, home in self.homes.items():
            self.assertEqual(home.env["TARNWICK_HOST"], host)
            for name in ("HOME", "TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"):
                self.assertTrue(home.env[name].startswith(f"{home.top}/"), name)
            self.assertTrue(os.path.isdir(home.env["TMPDIR"]))

    def test_the_quicklook_cache_lies_beside_the_temporary_folder_of_a_mac(self):
        temp = self.homes["mac"].env["TMPDIR"]
        self.assertTrue(os.path.isdir(os.path.normpath(temp + "/../C/com.apple.QuickLook.thumbnailcache")))

    def test_secrets_and_a_firefox_profile_are_there(self):
        for host, place in {"linux": ".mozilla/firefox", "mac": "Library/Application Support/Firefox/Profiles"}.items():
            home = pathlib.Path(self.homes[host].env["HOME"])
            self.assertTrue((home / place / "x3k9a1vp.default-release/places.sqlite").is_file())
            self.assertEqual((home / ".ssh/id_ed25519").stat().st_mode & 0o777, 0o600)

    def test_odd_kinds_and_names_are_there(self):
        for host, files in self.files.items():
            names = {os.path.basename(path) for path in files}
            for name in ("line\nbreak.log", "report\u202excod.txt", "R\u00e9sum\u00e9.bak", "Re\u0301sume\u0301.bak", "x" * 255):
                self.assertIn(name.encode(), names, host)
            self.assertIn(b"caf\xe9.log", names)
            status = list(files.values())
            self.assertTrue(any(s.st_nlink == 3 and stat.S_ISREG(s.st_mode) for s in status), "hard links")
            self.assertTrue(any(s.st_size > s.st_blocks * 512 + 2**20 for s in status), "a sparse file")
            links = [path for path, s in files.items() if stat.S_ISLNK(s.st_mode)]
            self.assertTrue(any(not os.path.exists(path) for path in links), "a dangling link")
            self.assertTrue(any(os.path.isdir(path) for path in links), "a link to a folder")

    def test_the_temporary_folder_holds_old_and_fresh(self):
        for home in self.homes.values():
            ages = [time.time() - entry.lstat().st_mtime for entry in pathlib.Path(home.env["TMPDIR"]).iterdir()]
            self.assertTrue(min(ages) < 86400 < max(ages))

    def test_things_in_the_linux_trash_have_their_info(self):
        trash = pathlib.Path(self.homes["linux"].env["XDG_DATA_HOME"]) / "Trash"
        for entry in (trash / "files").iterdir():
            self.assertTrue((trash / "info" / (entry.name + ".trashinfo")).read_text().startswith("[Trash Info]\nPath="))

    def test_its_settings_keep_a_clean_inside(self):
        for home in self.homes.values():
            settings = (pathlib.Path(home.env["XDG_CONFIG_HOME"]) / "Tarnwick/Tarnwick.conf").read_text()
            for rule in ("**/.git", "/var/crash", f"/**/.Trash-{os.getuid()}"):
                self.assertIn(rule, settings)

    def test_the_space_map_finds_something(self):
        for home in self.homes.values():
            settings = (pathlib.Path(home.env["XDG_CONFIG_HOME"]) / "Tarnwick/Tarnwick.conf").read_text()
            self.assertIn("[large]\nthresholdMB=1\n", settings)
            top = pathlib.Path(home.env["HOME"])
            seen = [path for path in top.rglob("*") if not any(part.startswith(".") for part in path.relative_to(top).parts)]
            large = [path for path in seen if path.is_file() and path.stat().st_blocks * 512 >= 1_000_000]
            self.assertGreaterEqual(len(large), 8)

    def test_the_size_is_bearable(self):
        for files in self.files.values():
            self.assertTrue(100e6 < sum(s.st_blocks * 512 for s in files.values()) < 300e6)


class Refusals(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-demo-", dir="/var/tmp")
        self.addCleanup(folder.cleanup)
        self.dir = pathlib.Path(folder.name)

    def test_a_second_run_is_refused_unless_it_is_asked_to_begin_anew(self):
        self.assertEqual(demo.run(self.dir).returncode, 0)
        mine = self.dir / "home/robin/mine.txt"
        mine.write_text("x")
        done = demo.run(self.dir)
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertIn("is not empty", done.stderr)
        self.assertTrue(mine.exists())
        self.assertEqual(demo.run(self.dir, "--again").returncode, 0)
        self.assertFalse(mine.exists())

    def test_what_it_did_not_make_is_never_built_over(self):
        (self.dir / "letter.txt").write_text("x")
        for arguments in ([], ["--again"]):
            self.assertEqual(demo.run(self.dir, *arguments).returncode, 1)
        self.assertEqual([entry.name for entry in self.dir.iterdir()], ["letter.txt"])

    def test_a_file_and_a_link_are_refused(self):
        file, link = self.dir / "file", self.dir / "link"
        file.write_text("x")
        (self.dir / "folder").mkdir()
        link.symlink_to(self.dir / "folder")
        for path in (file, link):
            self.assertEqual(demo.run(path, "--again").returncode, 1)
        self.assertEqual(list((self.dir / "folder").iterdir()), [])

    def test_a_folder_with_blanks_prints_an_environment_for_eval(self):
        done = demo.run(self.dir / "my demo")
        self.assertEqual(demo.environment(done.stdout)["HOME"], f"{self.dir}/my demo/home/robin")


if __name__ == "__main__":
    unittest.main()
