#!/usr/bin/env python3
"""Finds conditions on the operating system outside the folders that are chosen by it."""

import pathlib
import re
from typing import Iterator

import lintlib

RULE = "what only compiles on one system stands in a linux/ or macos/ folder, behind a header without conditions"

FOLDERS = {"linux", "macos"}
SYSTEM = re.compile(r"\b(Q_OS_\w+|__APPLE__|__MACH__|TARGET_OS_\w+|__linux(?:__)?|__gnu_linux__|__unix(?:__)?|_WIN32|_WIN64)\b")


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    for source in lintlib.sources(root, "src"):
        if FOLDERS & set(source.name.split("/")[:-1]):
            continue
        for number, line in enumerate(source.code, 1):
            for match in SYSTEM.finditer(line):
                yield lintlib.Finding(source.name, number, f"asks for {match.group(1)}")


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
