#!/usr/bin/env python3
"""Finds texts that read like words of the interface and don't go through translation."""

import pathlib
import re
from typing import Iterator

import lintlib

RULE = "what a user reads goes through tr, translate or QT_TRANSLATE_NOOP; what is literal by design stands in this lint's table"

FOLDERS = ("src/app", "src/cli", "src/core", "src/engines", "src/ui", "src/update")

TRANSLATES = re.compile(r"\b(?:tr|translate|QT_TRANSLATE(?:_N)?_NOOP3?)\s*\(")
TEXT = re.compile(r'(?:R"(?P<mark>[^()\\\s]{0,16})\((?P<raw>.*)\)(?P=mark)"|"(?P<plain>.*)")', re.DOTALL)
INCLUDE = re.compile(r"\s*#\s*include\b")

# No words of a text: its tags, what is put in for them, escapes.
NO_WORDS = re.compile(r"<[^<>]*>|&\w+;|%L?[0-9n]|\\x[0-9a-f]+|\\.")
# Two words, or one that begins with a capital and doesn't look like a name on the disk.
WORDS = re.compile(r"[A-Za-z]{2,},? [A-Za-z]{2,}|^[^\w/.\[]*[A-Z][a-z]{2,}[^A-Za-z/]*$")
# What is shown by these is read by the user, be it one small word.
SHOWS = re.compile(
    r"\b(?:set(?:Text|ToolTip|StatusTip|AccessibleName|AccessibleDescription|WindowTitle|PlaceholderText|Title|Eyebrow)"
    r"|addAction|addItem|addCounter|label|eyebrow|centred|wrapped|Button|notify|toast|complain)\s*[({]\s*(?:u|QStringLiteral\(u?)?$"
)

# Literal by design: where, what, why. The text as a whole matches.
LITERAL = [
    # The program and the machine.
    (r"app/identity\.h", r"Tarnwick", "the program's name"),
    (r"ui/i18n\.cpp", r"Hant|English|Deutsch", "languages by their own names, and a script's code"),
    (r"core/deployment_values\.h|core/Interrupts\.cpp", r".*", "told to those who build the program, or run it where nothing works"),
    (r"cli/arguments\.cpp", r"\[--.*", "the forms of a command line"),
    (r"ui/shell/commands\.cpp", r"Ctrl\+.", "names of keys, which Qt translates"),
    # What the program says to other programs.
    (r"ui/shell/program\.cpp", r"Fusion", "a style of Qt"),
    (r"ui/.*linux/.*", r"Get|Read|Notify", "D-Bus methods"),
    (r"engines/systemdata_actions\.cpp", r"do shell script.*|/usr/bin/.*", "commands"),
    (r"core/login\.cpp|core/trashinfo\.cpp", r"Exec=|Version=.*|\[.*| *<.*", "parts of files that the desktop reads"),
    # Looks.
    (r"ui/.*", r".*[{;].*", "style sheets and markup"),
    (r"ui/Theme\.cpp|ui/shell/CaptionButton\.cpp", r"(?:SF|Menlo|Noto|Source|Wen|Segoe).*", "names of fonts"),
    # Folders, patterns and endings, as they are on the disk.
    (r"core/places\.cpp|core/patterns\.cpp|core/appguard\.cpp", r".*", "tables of folders, products and patterns"),
    (r"engines/systemdata_(?:mac|linux)\.cpp", r"Library(?:/.*)?|VirtualBox VMs|Steam|Games", "folders"),
    (r"engines/LargeFileFinder\.cpp", r"[a-z0-9 ]+|Mobile Documents", "endings of names, a folder"),
    (r"engines/categories\.cpp", r"Documents|Desktop|Downloads|Pictures|Music|Videos|Movies|Library", "folders"),
    (r"ui/pages/LargeFileKind\.cpp", r".*", "keys of a table: the labels of the finder, which has them translated"),
    (r"ui/pages/LargeFilesResultsView\.cpp", r"Downloads", "the folder, by its name"),
    # Labels of places: a product, and what of it. Hints where a category looks.
    (r"engines/categories_(?:mac|linux)\.cpp", r"(?:[\w-]+ )+caches?| \(Flatpak\)|Homebrew downloads|Xcode DerivedData", "labels of products' caches"),
    (
        r"engines/categories_(?:mac|linux)\.cpp",
        r"Safari|Google(?: Chrome(?: Beta)?)?|Microsoft Edge|Brave|Chromium|Vivaldi|Opera|Firefox(?: · )?|Homebrew|Yarn|Code|Slack"
        r"|Cypress",
        "products",
    ),
    (r"engines/categories_mac\.cpp", r"Logs|Downloads", "folders"),
    (
        r"engines/categories\.cpp",
        r"Session logs, crash reports|\.dmg and \.pkg in Downloads|\.deb, \.rpm and disc images in Downloads"
        r"|(?:Safari|Firefox|Chrome|Chromium|Edge|Brave|, )+|(?:pip|npm|Cargo|Gradle|Go|ccache|Homebrew|Xcode|simulators|, )+"
        r"|~/Library/Logs, DiagnosticReports",
        "hints where a category looks: folders, products and endings",
    ),
    (r"core/platform\.cpp", r"Macintosh HD", "the volume's own name"),
    (r"engines/Scanner\.cpp", r"Recycle Bin \(all drives\)", "an item of a system whose texts are not ours to translate"),
    # The log stays in one language, so that whoever helps can read it.
    (r"engines/CleanLog\.cpp", r".*", "lines of the log"),
    # Heads of the list of large files.
    (r"ui/pages/LargeFilesModel\.cpp", r"Name|Kind|Last opened|Size", "heads of columns, set in capitals"),
]
TABLE = [(re.compile(rf"src/(?:{place})"), re.compile(text, re.DOTALL)) for place, text, _ in LITERAL]


def closing(code: str, opening: int) -> int:
    """Where the parenthesis that opens at this place closes."""
    depth = 0
    for place in range(opening, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place
    return len(code)


def texts(source: lintlib.Source) -> Iterator[tuple[int, str, bool]]:
    """The texts that don't stand in a call that translates: where each begins, and whether a call that shows it is given it."""
    code = lintlib.blanked(source.text)
    translated = [(call.start(), closing(code, call.end() - 1)) for call in TRANSLATES.finditer(code)]
    for hidden in lintlib.HIDDEN.finditer(source.text):
        match = TEXT.fullmatch(hidden.group(0))
        line = source.text[source.text.rfind("\n", 0, hidden.start()) + 1 : hidden.start()]
        if match and not INCLUDE.match(line) and not any(begin < hidden.start() < end for begin, end in translated):
            text = match.group("raw") if match.group("raw") is not None else match.group("plain")
            yield hidden.start(), text, SHOWS.search(code[: hidden.start()][-80:]) is not None


def has_words(text: str, shown: bool) -> bool:
    rest = NO_WORDS.sub(" ", text)
    return bool(re.search(r"[A-Za-z]{2,}", rest) if shown else WORDS.search(rest))


def is_literal(name: str, text: str) -> bool:
    return any(place.fullmatch(name) and what.fullmatch(text) for place, what in TABLE)


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    for source in lintlib.sources(root, *FOLDERS):
        for place, text, shown in texts(source):
            if has_words(text, shown) and not is_literal(source.name, text):
                yield lintlib.Finding(source.name, source.text.count("\n", 0, place) + 1, f'"{text}" is not translated')


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
