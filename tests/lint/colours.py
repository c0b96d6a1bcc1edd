#!/usr/bin/env python3
"""Finds colours that don't come from the theme, and numbers without a name in painting code."""

import pathlib
import re
from typing import Iterator

import lintlib

RULE = (
    "colours come from Theme, or are named constants that say '// hue: what of' on their line (a table says it where it"
    " opens); a function that paints names its numbers, but for 0, 1, 2 and 0.5"
)

# Where the colours of both looks are at home.
HOME = ("src/ui/Theme.", "src/ui/StyleSheet.")

# These are the same in every look; any other of Qt's has a place in the theme.
PLAIN = {"white", "black", "transparent"}
FREE_NUMBERS = {0.0, 0.5, 1.0, 2.0}

TEXT = re.compile(r'"((?:\\.|[^"\\\n])*)"')
HEX_TEXT = re.compile(r"(?<![\w&])#(?:[0-9a-fA-F]{8}|[0-9a-fA-F]{6}|[0-9a-fA-F]{3,4})\b")
HEX_NUMBER = re.compile(r"\b0[xX](?:[0-9a-fA-F]{6}|[0-9a-fA-F]{8})\b")
BY_CHANNELS = re.compile(r"\b(?:QColor(?:::from\w+|\s+\w+)?|qRgba?)\s*[({]\s*[\d.]+f?\s*,")
NAMED = re.compile(r"\bQt::(?:dark|light)?(white|black|transparent|red|green|blue|cyan|magenta|yellow|gray|Red|Green|Blue|Cyan|Magenta|Yellow|Gray)\b")

HUE = re.compile(r"//\s*hue:\s*\S")
CONSTANT = re.compile(r"\b(?:constexpr|const)\b.*\bk[A-Z]\w*")

# The head of a function that paints: by its name, or by what it is given.
PAINTS = re.compile(r"(?:\bpaintEvent\s*\([^(){};]*\)|\([^(){};]*\bQPainter\b[^(){};]*\))(?:\s|const|override|noexcept|final|->\s*[\w:]+)*\{")
NUMBER = re.compile(r"(?<![\w.])(?:0[xX][0-9a-fA-F']+|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][-+]?\d+)?)[fFuUlL]*(?![\w.])")
CONSTEXPR = re.compile(r"\bconstexpr\b[^;]*;")


def closing(text: str, opening: int) -> int:
    """Where the brace that opens at this place closes."""
    depth = 0
    for place in range(opening, len(text)):
        depth += {"{": 1, "}": -1}.get(text[place], 0)
        if depth == 0:
            return place
    return len(text)


def hue_lines(source: lintlib.Source) -> set[int]:
    """The lines, from 1, on which a named constant owns up to its colour."""
    code = "\n".join(source.code)
    result: set[int] = set()
    start = 0
    for number, line in enumerate(source.code, 1):
        if HUE.search(source.lines[number - 1]) and CONSTANT.search(line):
            result.add(number)
            if line.count("{") > line.count("}"):
                end = closing(code, start + line.index("{"))
                result.update(range(number, code.count("\n", 0, end) + 2))
        start += len(line) + 1
    return result


def colours(source: lintlib.Source) -> Iterator[lintlib.Finding]:
    marked = hue_lines(source)
    for number, (raw, code) in enumerate(zip(source.lines, source.code), 1):
        if number in marked:
            continue
        # The code has blanks where a text was, and nothing where a comment was.
        texts = [text for text in TEXT.finditer(raw) if code[text.start() : text.start() + 1] == '"']
        found = [match.group(0) for text in texts for match in HEX_TEXT.finditer(text.group(1))]
        found += [match.group(0) for match in HEX_NUMBER.finditer(code)]
        found += [match.group(0) + " …" for match in BY_CHANNELS.finditer(code)]
        found += [match.group(0) for match in NAMED.finditer(code) if match.group(0) not in {f"Qt::{name}" for name in PLAIN}]
        for what in found:
            yield lintlib.Finding(source.name, number, f"has a colour of its own, {what}")


def value(number: str) -> float:
    text = number.replace("'", "").rstrip("uUlL")
    return float(int(text, 16)) if text[:2] in ("0x", "0X") else float(text.rstrip("fF"))


def numbers(source: lintlib.Source) -> Iterator[lintlib.Finding]:
    code = "\n".join(source.code)
    named = CONSTEXPR.sub(lambda match: re.sub(r"[^\n]", " ", match.group(0)), code)
    seen: set[int] = set()
    for head in PAINTS.finditer(code):
        end = closing(code, head.end() - 1)
        for match in NUMBER.finditer(named, head.end(), end):
            if match.start() not in seen and value(match.group(0)) not in FREE_NUMBERS:
                seen.add(match.start())
                line = code.count("\n", 0, match.start()) + 1
                yield lintlib.Finding(source.name, line, f"paints with a number without a name, {match.group(0)}")


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    for source in lintlib.sources(root, "src/ui"):
        findings = list(numbers(source))
        if not source.name.startswith(HOME):
            findings += colours(source)
        yield from sorted(set(findings), key=lambda finding: (finding.line, finding.text))


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
