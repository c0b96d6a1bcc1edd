#!/usr/bin/env python3
"""Finds translations that are missing, or that say by their form something else than the English text."""

import html
import pathlib
import re
from typing import Iterator, NamedTuple

import lintlib

RULE = (
    "every language of src/ui/i18n.cpp has a catalogue, and src/ui/CMakeLists.txt compiles it; every text in it is translated, in as"
    " many forms as the language counts in, with the placeholders, tags, blanks and ending of the English one"
)

FOLDER = "resources/i18n"

# How many forms each language counts in, as Qt has it.
FORMS = {"en": 2, "zh_CN": 1, "zh_TW": 1, "ja": 1, "ko": 1, "es": 2, "fr": 2, "de": 2, "pt_BR": 2, "ru": 3}
# Those whose first form is for exactly one, so that it may say "one" without a figure. In French and Brazilian Portuguese it
# is for none too, in Russian for 21 and 101.
FIRST_IS_ONE = {"en", "es", "de"}
# Where nothing stands between words, a blank at the edge of a text may go with the mark that it stood beside.
WITHOUT_BLANKS = {"zh_CN", "zh_TW", "ja"}

# What ends a text, and what may stand for it in another language.
ENDINGS = {"…": "", ".": "。", ":": "：", "?": "？", "!": "！"}
ENDS = re.compile(r"[.…:?!。：？！]$")

CJK = r"[\u3040-\u30ff\u3400-\u9fff]"
NARROW_MARK = (rf"{CJK}[,;:?!]|{CJK}\.(?!\w)|[,;:?!]{CJK}", "a narrow mark beside a wide character")
# Marks that a language doesn't write so.
WRONG_MARKS = {
    "fr": [
        (r"[^\u00a0\u202f][?!;»]|[^\u00a0\u202f]:(?=\s|$)|«(?!\u00a0|\u202f)", "no protected blank at a mark"),
        (r"[“”\"]", "marks of quotation that are not « and »"),
    ],
    "de": [(r"[”\"«»]", "marks of quotation that are not „ and “")],
    "ru": [(r"[“”\"]", "marks of quotation that are not « and »")],
    "zh_CN": [NARROW_MARK],
    "zh_TW": [NARROW_MARK],
    "ja": [NARROW_MARK],
}
# Words that bring a full stop of their own.
ABBREVIATIONS = {"fr": ["sem."], "ru": ["мес.", "Выкл.", "нед."]}

COUNT = re.compile(r"%L?n")
ARGUMENT = re.compile(r"%L?[1-9]")
TAG = re.compile(r"</?[a-zA-Z][^<>]*>")
ACCELERATOR = re.compile(r"(?<!&)&(?=\w)")
MESSAGE = re.compile(r"<message\b([^>]*)>(.*?)</message>", re.DOTALL)


class Entry(NamedTuple):
    line: int  # of the file, from 1
    source: str
    counts: bool
    state: str  # "", or "unfinished", "vanished", "obsolete"
    forms: list[str]


def unescaped(text: str) -> str:
    return html.unescape(re.sub(r'<byte value="x([0-9a-f]+)"/>', lambda code: chr(int(code[1], 16)), text))


def entries(text: str) -> Iterator[Entry]:
    for match in MESSAGE.finditer(text):
        body = match.group(2)
        source = re.search(r"<source>(.*?)</source>", body, re.DOTALL)
        translation = re.search(r"<translation([^>]*?)(?:/>|>(.*?)</translation>)", body, re.DOTALL)
        state = re.search(r'type="(\w+)"', translation.group(1)) if translation else None
        inner = (translation.group(2) or "") if translation else ""
        counts = 'numerus="yes"' in match.group(1)
        forms = re.findall(r"<numerusform[^>]*?(?:/>|>(.*?)</numerusform>)", inner, re.DOTALL) if counts else [inner]
        yield Entry(
            line=text.count("\n", 0, match.start()) + 1,
            source=unescaped(source.group(1)) if source else "",
            counts=counts,
            state=state.group(1) if state else "",
            forms=[unescaped(form) for form in forms],
        )


def placeholders(text: str) -> set[str]:
    return {found.replace("L", "") for found in ARGUMENT.findall(text)} | ({"%n"} if COUNT.search(text) else set())


def wrong_form(code: str, entry: Entry, number: int, form: str) -> Iterator[str]:
    """What is wrong with one form of a translation."""
    source = entry.source
    expected, given = placeholders(source), placeholders(form)
    if entry.counts and number == 0 and code in FIRST_IS_ONE and "%n" in expected:
        given = given | {"%n"}
    if expected != given:
        yield f"has the placeholders {' '.join(sorted(given)) or 'none'} for {' '.join(sorted(expected)) or 'none'}"
    if sorted(TAG.findall(source)) != sorted(TAG.findall(form)):
        yield "has other tags"
    if len(ACCELERATOR.findall(source)) != len(ACCELERATOR.findall(form)):
        yield "has other accelerators"
    for edge, strip in (("begins", str.lstrip), ("ends", str.rstrip)):
        blank, given_blank = source != strip(source), form != strip(form)
        if blank != given_blank and not (blank and code in WITHOUT_BLANKS):
            yield f"{edge} {'without' if blank else 'with'} a blank"
    yield from wrong_ending(code, source.rstrip(), form.rstrip())
    plain = TAG.sub("", form)
    for pattern, what in WRONG_MARKS.get(code, []):
        if re.search(pattern, plain):
            yield f"has {what}"


def wrong_ending(code: str, source: str, form: str) -> Iterator[str]:
    source_end, form_end = ENDS.search(TAG.sub("", source)), ENDS.search(TAG.sub("", form))
    if source_end and not (form_end and form_end.group() in source_end.group() + ENDINGS[source_end.group()]):
        yield f"doesn't end with {source_end.group()}"
    if form_end and not source_end and form.split()[-1] not in ABBREVIATIONS.get(code, []):
        yield f"ends with {form_end.group()}"


def wrong_entry(code: str, entry: Entry) -> Iterator[str]:
    if entry.state:
        yield f"is {entry.state}"
        return
    if entry.counts and len(entry.forms) != FORMS[code]:
        yield f"has {len(entry.forms)} forms for {FORMS[code]}"
    if any(not form.strip() for form in entry.forms):
        yield "is empty"
        return
    for number, form in enumerate(entry.forms):
        for what in wrong_form(code, entry, number, form):
            yield f"{what}: {form!r}"


def check_catalogue(code: str, name: str, text: str) -> Iterator[lintlib.Finding]:
    language = "en_US" if code == "en" else code
    if f'language="{language}"' not in text.split("<context>")[0]:
        yield lintlib.Finding(name, 1, f"is not for the language {language}")
    for match in re.finditer(r"<location\b", text):
        yield lintlib.Finding(name, text.count("\n", 0, match.start()) + 1, "keeps the place of a text in the sources")
    for entry in entries(text):
        for what in wrong_entry(code, entry):
            yield lintlib.Finding(name, entry.line, f"{entry.source!r} {what}")


def same_languages(codes: list[str], root: pathlib.Path) -> Iterator[lintlib.Finding]:
    built = re.search(r"set\(languages ([^)]*)\)", (root / "src/ui/CMakeLists.txt").read_text(encoding="utf-8"))
    if not built or built.group(1).split() != codes:
        yield lintlib.Finding("src/ui/CMakeLists.txt", 1, f"doesn't compile the languages {' '.join(codes)}")
    there = {path.name.removeprefix("tarnwick_").removesuffix(".ts") for path in (root / FOLDER).glob("*.ts")}
    for code in sorted(there.symmetric_difference(codes)):
        what = "is for no language of src/ui/i18n.cpp" if code in there else "is missing"
        yield lintlib.Finding(f"{FOLDER}/tarnwick_{code}.ts", 1, what)
    for code in codes:
        glossary = f"{FOLDER}/glossary/{code}.md"
        if code != "en" and not (root / glossary).exists():
            yield lintlib.Finding(glossary, 1, "is missing: the terms of the language")
    for code in sorted(set(codes).symmetric_difference(FORMS)):
        yield lintlib.Finding("tests/lint/catalogues.py", 1, f"knows not how {code} counts, or knows it for nothing")


def check(root: pathlib.Path) -> Iterator[lintlib.Finding]:
    codes = re.findall(r'\{u"(\w+)"_s,\s*u"[^"]+"_s\}', (root / "src/ui/i18n.cpp").read_text(encoding="utf-8"))
    yield from same_languages(codes, root)
    for code in codes:
        path = root / FOLDER / f"tarnwick_{code}.ts"
        if path.exists() and code in FORMS:
            yield from check_catalogue(code, path.relative_to(root).as_posix(), path.read_text(encoding="utf-8"))


if __name__ == "__main__":
    lintlib.run(__doc__, RULE, check)
