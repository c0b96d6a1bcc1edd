#!/usr/bin/env python3
"""Finds files that have grown too long, and tests that wait for a guessed time."""

import pathlib
import re
from typing import Iterator

import lintlib

RULE = "a file of src/ splits before 500 lines; a test waits for the signal or the condition, not for a time"

MOST_LINES = 500

# Longer ones that we know of, each with the reason why it stays one file.
LONG: dict[str, str] = {}

GUESSED_WAIT = re.compile(r"\b(?:QTest::qWait|qWait|QTest::qSleep|QThread::m?sleep|usleep|std::this_thread::sleep_for)\s*\(")


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    for source in lintlib.sources(root, "src"):
        if len(source.lines) > MOST_LINES and source.name not in LONG:
            yield lintlib.Finding(source.name, MOST_LINES + 1, f"has {len(source.lines)} lines")
    for source in lintlib.sources(root, "tests"):
        for number, line in enumerate(source.code, 1):
            match = GUESSED_WAIT.search(line)
            if match and "// waits because" not in source.lines[number - 1]:
                yield lintlib.Finding(source.name, number, "waits for a guessed time")


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
