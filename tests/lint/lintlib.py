"""What the lints share: reading the sources without comments and texts, and reporting."""

import argparse
import pathlib
import re
import sys
from typing import Callable, Iterator, NamedTuple

SUFFIXES = {".cpp", ".h", ".mm"}


class Finding(NamedTuple):
    file: str  # relative to the root, with forward slashes
    line: int
    text: str


class Source:
    """One file: its raw lines, and the same lines with comments and the contents of texts blanked out."""

    def __init__(self, root: pathlib.Path, path: pathlib.Path):
        self.name = path.relative_to(root).as_posix()
        self.text = path.read_text(encoding="utf-8")
        self.lines = self.text.splitlines()
        self.code = blanked(self.text).splitlines()


# A raw text, a comment of either kind, a text, a character; in this order, as the first that begins wins.
HIDDEN = re.compile(
    r'R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"'
    r"|//(?:\\\n|[^\n])*"
    r"|/\*.*?\*/"
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])*'",
    re.DOTALL,
)


def blanked(text: str) -> str:
    """@p text with comments and the contents of texts as blanks, line for line; include lines keep their names."""

    def blank(match: re.Match) -> str:
        hidden = match.group(0)
        line = text[text.rfind("\n", 0, match.start()) + 1 : match.start()]
        if hidden.startswith('"') and re.fullmatch(r"\s*#\s*include\s*", line):
            return hidden
        kept = '"' if hidden[0] in 'R"' else " "
        return kept + "".join("\n" if c == "\n" else " " for c in hidden[1:-1]) + kept

    return HIDDEN.sub(blank, text)


def sources(root: pathlib.Path, *folders: str) -> Iterator[Source]:
    """Every C++ file below these folders of @p root, in the order of their names."""
    for folder in folders:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in SUFFIXES and path.is_file():
                yield Source(root, path)


def run(description: str, rule: str, check: Callable[[pathlib.Path], Iterator[Finding]]) -> None:
    """The main of a lint: prints what @p check finds, with the rule, and ends the process with 1 if that is anything."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("root", type=pathlib.Path, help="the repository")
    root = parser.parse_args().root.resolve()
    if not (root / "src").is_dir():
        sys.exit(f"{root} has no src/ to look at")
    findings = list(check(root))
    for finding in findings:
        print(f"{finding.file}:{finding.line}: {finding.text}")
    if findings:
        print(f"Rule: {rule}")
    sys.exit(1 if findings else 0)
