#!/usr/bin/env python3
"""Finds calls that remove or move files anywhere but in the one primitive that may."""

import pathlib
import re
from typing import Iterator

import lintlib

RULE = "only core/removal and core/trash remove or move files (docs/architecture.md, Removal)"

# Files that are the primitive.
PRIMITIVE = ("src/core/removal", "src/core/trash", "src/core/linux/trash", "src/core/macos/trash")

# Single calls elsewhere, each with its reason: file, what is called, why.
ALLOWED = {
    ("src/core/sys.h", "renameNoReplace"): "declares it for the primitive",
    ("src/core/linux/sys.cpp", "renameNoReplace"): "the system's side of it",
    ("src/core/linux/sys.cpp", "renameat2"): "the system call behind renameNoReplace",
    ("src/core/sys.cpp", "renameat"): "renameNoReplace on file systems that know no such rename",
    ("src/core/sys.cpp", "unlinkat"): "the second half of that, and taking back its first half",
    ("src/core/ownfile.cpp", "renameat"): "puts one of the program's own small files in place",
    ("src/core/ownfile.cpp", "unlinkat"): "takes one of the program's own small files away",
    ("src/core/ownfile.cpp", "renameNoReplace"): "keeps a damaged file of the program's own under another name",
    ("src/core/macos/sys.cpp", "renameNoReplace"): "the system's side of it",
    ("src/core/macos/sys.cpp", "renameatx_np"): "the system call behind renameNoReplace",
    ("src/update/PartFile.cpp", "unlinkat"): "its own download, in a folder that the program made",
    ("src/update/PartFile.cpp", "renameat"): "gives its own download its name, in that folder",
}

POSIX = "unlink|unlinkat|rmdir|rename|renameat|renameat2|renameatx_np|renamex_np|remove|renameNoReplace"
METHODS = "remove|rename|moveToTrash|rmdir|rmpath|removeRecursively"
CLASSES = "QFile|QDir|QFileInfo|QSaveFile|QTemporaryFile|QFileDevice"

# A free call; a member call and a declaration have something else before the name.
FREE_CALL = re.compile(rf"(?P<before>[\w:>.\])-]*[\s&*]*)(?<!\w)(?P<name>{POSIX})\s*\(")
STATIC_CALL = re.compile(rf"\b(?:{CLASSES})::(?P<name>{METHODS})\b")
TEMPORARY_CALL = re.compile(rf"\b(?:{CLASSES})\s*(?:\([^;]*?\)|\{{[^;]*?\}})\s*\.\s*(?P<name>{METHODS})\s*\(")
VARIABLE = re.compile(
    rf"\b(?:{CLASSES})>?\s*[&*]*\s+[&*]*(\w+)\b|\b(\w+)\s*=\s*(?:new\s+|std::make_unique<)?(?:{CLASSES})>?\s*[({{]"
)
ANY_CALL = re.compile(r"(?:\.|->|::)\s*(?P<name>removeRecursively|rmpath)\s*\(")
OTHER = re.compile(r"\bfilesystem::(?P<name>\w+)|\b(?P<call>SYS_(?:unlink|rename|rmdir)\w*|__NR_(?:unlink|rename|rmdir)\w*)")
KEYWORDS = {"return", "else", "do", "co_return", "co_await", "throw", "case", "and", "or", "not"}


def is_free_call(before: str) -> bool:
    """Whether what stands before the name leaves it a call of the system's function."""
    text = before.rstrip()
    if text.endswith(("->", ".")):
        return False
    if text.endswith("::"):
        return re.search(r"(^|[^\w>]|\b(?:std|sys))$", text[:-2]) is not None
    if before != text and text.rstrip("&*"):  # "void remove(": a declaration, unless the word before is a statement's
        return text.rstrip("&*") in KEYWORDS or text.endswith("&&") or not re.search(r"\w>?$", text.rstrip("&*"))
    return True


def calls(line: str, variables: list[str]) -> Iterator[str]:
    for match in FREE_CALL.finditer(line):
        if is_free_call(match.group("before")):
            yield match.group("name")
    for pattern in (STATIC_CALL, TEMPORARY_CALL, ANY_CALL):
        yield from (match.group("name") for match in pattern.finditer(line))
    for match in OTHER.finditer(line):
        yield match.group("call") or "filesystem::" + match.group("name")
    if variables:
        named = rf"(?<![\w.>])(?:{'|'.join(variables)})\s*(?:\.|->)\s*(?P<name>{METHODS})\s*\("
        yield from (match.group("name") for match in re.finditer(named, line))


def file_variables(source: lintlib.Source) -> set[str]:
    return {a or b for line in source.code for a, b in VARIABLE.findall(line)}


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    all_sources = list(lintlib.sources(root, "src"))
    members = {name for source in all_sources for name in file_variables(source) if name.startswith("m_")}
    for source in all_sources:
        if source.name.startswith(PRIMITIVE):
            continue
        variables = sorted(members | file_variables(source))
        for number, line in enumerate(source.code, 1):
            for name in dict.fromkeys(calls(line, variables)):
                if (source.name, name) not in ALLOWED:
                    yield lintlib.Finding(source.name, number, f"calls {name}")


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
