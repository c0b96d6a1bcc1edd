#!/usr/bin/env python3
"""Values of a deployment that would open the program to strangers don't compile.

The header that holds them to their rules is compiled as the build compiles it, with other values.
"""

import json
import os
import pathlib
import re
import shlex
import subprocess
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))
BUILD = pathlib.Path(os.environ.get("TARNWICK_BUILD", SOURCE / "build/dev"))
NAMES = ("DEBUG_BUILD", "DOMAIN", "RELEASE_HOST", "SELF_UPDATE", "WEBSITE")


class Deployment(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
        entry = next(entry for entry in entries if entry["file"].endswith("/core/deployment.cpp"))
        cls.folder = entry["directory"]
        command = shlex.split(entry["command"])
        output = command.index("-o")
        source = command.index("-c")
        cls.command = command[:output] + command[output + 2 : source] + ["-fsyntax-only", "-x", "c++", "-"]

    def compile(self, **values: str) -> tuple[bool, str]:
        """With these values for TARNWICK_NAME, and the build's own for the others."""
        command = [word for word in self.command if not any(word.startswith(f"-DTARNWICK_{name}=") for name in values)]
        command[-1:] = [*(f"-DTARNWICK_{name}={value}" for name, value in values.items()), "-"]
        source = '#include "core/deployment_values.h"\n'
        done = subprocess.run(command, cwd=self.folder, input=source, capture_output=True, text=True, check=False)
        return done.returncode == 0, done.stderr

    def assert_refused(self, reason: str, **values: str):
        compiles, said = self.compile(**values)
        self.assertFalse(compiles, values)
        self.assertRegex(said, re.escape(reason))

    def test_the_build_tells_all_values_and_compiles(self):
        for name in NAMES:
            self.assertEqual(sum(word.startswith(f"-DTARNWICK_{name}=") for word in self.command), 1, name)
        self.assertEqual(self.compile(), (True, ""))

    def test_only_a_debug_build_goes_without_a_domain(self):
        self.assert_refused("TARNWICK_DOMAIN is empty", DOMAIN='""', DEBUG_BUILD="0")
        compiles, said = self.compile(DOMAIN='""', DEBUG_BUILD="1")
        self.assertTrue(compiles, said)

    def test_a_domain_is_a_name_of_two_parts_in_lower_case(self):
        for domain in ("example", "Tarnwick.example", ".tarnwick.example", "tarnwick.example.", "a..b", "https://a.b", "a.b/c", "a.b:8", "*.b"):
            self.assert_refused("TARNWICK_DOMAIN is no domain", DOMAIN=f'"{domain}"', RELEASE_HOST=f'"{domain}"')
        compiles, said = self.compile(DOMAIN='"a-1.b"', RELEASE_HOST='"a-1.b"')
        self.assertTrue(compiles, said)

    def test_the_release_host_lies_in_the_domain(self):
        for host in ("b.c", "xa.b", "a.b.c", "b", "", "A.b", ".a.b"):
            self.assert_refused("TARNWICK_RELEASE_HOST is no host", DOMAIN='"a.b"', RELEASE_HOST=f'"{host}"')
        for host in ("a.b", "x.a.b", "y.x.a.b"):
            compiles, said = self.compile(DOMAIN='"a.b"', RELEASE_HOST=f'"{host}"')
            self.assertTrue(compiles, said)

    def test_the_site_ends_without_a_slash(self):
        self.assert_refused("TARNWICK_WEBSITE ends", WEBSITE='"https://a.b/"')


if __name__ == "__main__":
    unittest.main()
