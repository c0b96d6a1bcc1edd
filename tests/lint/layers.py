#!/usr/bin/env python3
"""Reads every #include of src/ and finds those that point up, or at no file of ours."""

import pathlib
import re
from typing import Iterator, Optional

import lintlib

RULE = "a file includes files of its own layer and of the layers below it, never above (docs/architecture.md, Layers)"

# Layer, what belongs to it (the longest match of a file's path counts), and the layers that it may include beside itself.
LAYERS = {
    "core": (["src/core/"], []),
    "records": (["src/app/records."], ["core"]),
    "engines": (["src/engines/"], ["records", "core"]),
    "state": (["src/app/"], ["engines", "records", "core"]),
    "update": (["src/update/"], ["core"]),
    "i18n": (["src/ui/i18n."], ["state", "engines", "records", "core"]),
    "ui": (["src/ui/"], ["i18n", "state", "engines", "records", "core"]),
    "pages": (["src/ui/pages/"], ["ui", "i18n", "state", "engines", "records", "core"]),
    "shell": (["src/ui/shell/"], ["pages", "ui", "update", "i18n", "state", "engines", "records", "core"]),
    "window program": (
        ["src/app/main."],
        ["shell", "pages", "ui", "update", "i18n", "state", "engines", "records", "core"],
    ),
    "gallery": (
        ["src/gallery/"],
        ["shell", "pages", "ui", "update", "i18n", "state", "engines", "records", "core"],
    ),
    "terminal program": (["src/cli/"], ["i18n", "state", "engines", "records", "core"]),
}

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"')


def layer_of(name: str) -> Optional[str]:
    matches = [
        (len(prefix), layer)
        for layer, (prefixes, _) in LAYERS.items()
        for prefix in prefixes
        if name.startswith(prefix)
    ]
    return max(matches)[1] if matches else None


def check_include(root: pathlib.Path, source: lintlib.Source, included: str) -> Optional[str]:
    """What is wrong with this include; None if nothing is."""
    if included.endswith(".moc") or included.startswith("moc_"):
        return None
    if not (root / "src" / included).is_file():
        return f'"{included}" is no file below src/; include our own files by their path from there, others with <>'
    own, other = layer_of(source.name), layer_of("src/" + included)
    if own is None or other is None:
        return f'"{included}": {source.name if own is None else included} belongs to no layer'
    if other != own and other not in LAYERS[own][1]:
        return f'"{included}" is of the layer {other}, which {own} may not include'
    return None


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    for source in lintlib.sources(root, "src"):
        for number, line in enumerate(source.code, 1):
            match = INCLUDE.match(line)
            wrong = check_include(root, source, match.group(1)) if match else None
            if wrong:
                yield lintlib.Finding(source.name, number, wrong)


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
