"""A small repository that one lint is run over."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent


class LintCase(unittest.TestCase):
    """Builds a small repository and runs one lint over it."""

    lint = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        (self.root / "src").mkdir()

    def write(self, name: str, text: str):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def run_lint(self) -> tuple[int, list[str]]:
        command = [sys.executable, HERE / f"{self.lint}.py", self.root]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout.splitlines()

    def assert_clean(self):
        self.assertEqual(self.run_lint(), (0, []))

    def assert_found(self, *places: str):
        """Exactly these places, as FILE:LINE, are found, and the rule is told."""
        status, lines = self.run_lint()
        self.assertEqual(status, 1)
        self.assertEqual([line.split(": ")[0] for line in lines[:-1]], list(places), lines)
        self.assertTrue(lines[-1].startswith("Rule: "))
