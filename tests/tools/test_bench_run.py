#!/usr/bin/env python3
"""bench/run compares what is there, leaves out what isn't or fails, and leaves nothing behind."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))


class Run(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.programs = pathlib.Path(folder.name) / "programs"
        self.trees = pathlib.Path(folder.name) / "trees"
        self.programs.mkdir()
        self.trees.mkdir()
        self.add("make-tree", 'mkdir -p "$1" && echo "$2" >"$1/entries"')
        self.add("floor", "echo name=floor ms=100.0 peak_kib=1000")

    def add(self, name: str, body: str):
        path = self.programs / f"tarnwick-bench-{name}"
        path.write_text(f"#!/bin/sh\n{body}\n")
        path.chmod(0o755)

    def bench(self, *arguments: str) -> subprocess.CompletedProcess:
        command = [sys.executable, "-B", SOURCE / "bench/run", self.programs, "--dir", self.trees, "--rounds", "3", *arguments]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def row(self, printed: str, name: str) -> list[str]:
        return next(line.split() for line in printed.splitlines() if line.split()[:1] == [name])

    def test_medians_and_ratios_are_those_of_the_programs_own_times(self):
        self.add("measure", f'n=$(cat {self.trees}/n 2>/dev/null || echo 0); echo $((n + 1)) >{self.trees}/n\n'
                 'set -- 999 150 120 300; shift $n; echo "name=measure ms=$1 cpu_ms=42.0 peak_kib=1234"')
        done = self.bench("--only", "measure")
        self.assertEqual(self.row(done.stdout, "measure")[1:6], ["150.0", "120.0", "42.0", "1234", "1.50"])

    def test_a_program_that_fails_or_is_missing_is_left_out(self):
        self.add("measure", "echo broken; exit 3")
        done = self.bench()
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("tarnwick-bench-measure", done.stderr)
        self.assertIn("broken", done.stderr)
        self.assertIn("visit isn't there: left out", done.stderr)
        self.assertNotIn("measure", [line.split()[0] for line in done.stdout.splitlines() if line.split()])
        self.assertEqual(self.row(done.stdout, "floor")[1], "100.0")

    def test_every_remover_gets_a_tree_of_its_own(self):
        self.add("clean", 'test -e "$1/entries" && rm "$1/entries" && echo name=clean ms=5')
        done = self.bench("--only", "clean")
        self.assertEqual(self.row(done.stdout, "clean")[1], "5.0")
        self.assertEqual(done.stderr, "")

    def test_promises_are_judged(self):
        self.add("measure", "echo name=measure ms=105.0")
        self.add("visit", "echo name=visit ms=110.2")
        self.add("trash", "echo name=trash ms=7 x_qt=0.39 same_name_x=1.31")
        printed = self.bench().stdout
        self.assertIn("measure x floor: 1.05 of 1.05, held", printed)
        self.assertIn("visit x floor: 1.10 of 1.10, BROKEN", printed)
        self.assertIn("trash x_qt: 0.39 of 0.40, held", printed)
        self.assertIn("trash same_name_x: 1.31 of 1.30, BROKEN", printed)

    def test_contenders_begin_in_turn(self):
        for name in ("measure", "visit"):
            self.add(name, f'echo {name} >>{self.trees}/order; echo name={name} ms=1')
        self.bench()
        order = (self.trees / "order").read_text().split()[:8]  # of four rounds, the floor between them
        self.assertIn(["visit", "measure"], [order[at:at + 2] for at in range(0, 8, 2)])
        self.assertIn(["measure", "visit"], [order[at:at + 2] for at in range(0, 8, 2)])

    def test_what_compares_itself_is_shown_as_it_says(self):
        self.add("protected", "echo preparing; echo name=protected ms=7 ratio=61.2")
        self.assertIn("name=protected ms=7 ratio=61.2", self.bench().stdout)

    def test_the_trees_are_removed(self):
        self.bench()
        self.assertEqual(list(self.trees.glob("tarnwick-*")), [])

    def test_without_the_tree_maker_it_says_what_to_do(self):
        (self.programs / "tarnwick-bench-make-tree").unlink()
        done = self.bench()
        self.assertEqual(done.returncode, 1)
        self.assertIn("build the release preset", done.stderr)


if __name__ == "__main__":
    unittest.main()
