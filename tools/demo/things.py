"""What a demo home is made of, and how it is put on disk."""

import os
import pathlib
import random
import time
from dataclasses import dataclass, field
from typing import Optional, Union

KB = 1024
DAY = 86400


@dataclass(frozen=True)
class File:
    """A file of @p kb really written kilobytes, or of this text."""

    path: str
    kb: float = 4
    days: float = 30  # since it was changed
    text: Optional[str] = None
    logical_mb: float = 0  # longer than what is written: a sparse file
    mode: int = 0o644


@dataclass(frozen=True)
class Folder:
    """An empty folder."""

    path: str
    mode: int = 0o755


@dataclass(frozen=True)
class Link:
    """A symbolic link; the target stands as given, "~" is the home folder."""

    path: str
    target: str
    days: float = 30


@dataclass(frozen=True)
class Hard:
    """A further name of a file that was made before; both below the same entry."""

    path: str
    to: str


@dataclass(frozen=True)
class Pipe:
    path: str
    days: float = 30


Thing = Union[File, Folder, Link, Hard, Pipe]


@dataclass(frozen=True)
class Item:
    """What a scan lists as one line of a category; paths of @p things are relative to @p path, "" being itself.

    @p whole: the folder stays and its contents go. @p stays: what must stay below it, path and reason.
    """

    category: str
    path: str
    things: list[Thing]
    whole: bool = True
    stays: dict[str, str] = field(default_factory=dict)


@dataclass(frozen=True)
class Kept:
    """What no scan lists, with the reason."""

    reason: str
    things: list[Thing]


@dataclass(frozen=True)
class Home:
    """One host's home folder. "~" begins what lies in it, "$TMPDIR" what lies in the temporary folder."""

    home: str  # relative to the demo's folder
    temp: str
    items: list[Item]
    kept: list[Kept]


def spread(pattern: str, count: int, kb: float, days: float = 20) -> list[File]:
    """@p count files of about @p kb each; the same ones every time. @p pattern takes a number."""
    dice = random.Random(pattern)
    return [File(pattern.format(dice.getrandbits(24)), kb * dice.uniform(0.3, 1.7), days * dice.uniform(0.5, 2)) for _ in range(count)]


class Builder:
    """Puts things on disk below one folder."""

    def __init__(self, top: pathlib.Path, home: Home):
        self._places = {"~": top / home.home, "$TMPDIR": top / home.temp}
        self._now = time.time()
        self._times: dict[bytes, float] = {}  # what was made, with the time of its last change

    def path(self, text: str) -> str:
        """The absolute path of "~/…" or "$TMPDIR/…", clean."""
        first, _, rest = text.partition("/")
        return os.path.normpath(os.path.join(self._places[first], rest))

    def make(self, thing: Thing, base: str = "") -> None:
        path = os.fsencode(self.path(f"{base}/{thing.path}".strip("/") if base else thing.path))
        if not isinstance(thing, Folder):
            self._fill(thing, path, base)
        else:
            os.makedirs(path, exist_ok=True)
            os.chmod(path, thing.mode)

    def _fill(self, thing: Thing, path: bytes, base: str) -> None:
        os.makedirs(os.path.dirname(path), exist_ok=True)
        if isinstance(thing, Link):
            os.symlink(thing.target.replace("~", str(self._places["~"]), 1), path)
        elif isinstance(thing, Hard):
            os.link(os.fsencode(self.path(f"{base}/{thing.to}" if base else thing.to)), path)
            return
        elif isinstance(thing, Pipe):
            os.mkfifo(path)
        else:
            self._write(thing, path)
        self._times[path] = self._now - thing.days * DAY

    def _write(self, thing: File, path: bytes) -> None:
        handle = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, thing.mode)
        try:
            if thing.text is not None:
                os.write(handle, thing.text.encode())
            elif thing.kb > 0:
                os.posix_fallocate(handle, 0, int(thing.kb * KB))
            if thing.logical_mb:
                os.ftruncate(handle, int(thing.logical_mb * KB * KB))
        finally:
            os.close(handle)

    def finish(self, top: pathlib.Path) -> None:
        """Gives everything its time: a folder that of the newest thing in it."""
        for folder, folders, files in os.walk(os.fsencode(top), topdown=False):
            times = [self._times.get(os.path.join(folder, name)) for name in folders + files]
            newest = max((t for t in times if t is not None), default=self._now - 30 * DAY)
            for name in files + [name for name in folders if os.path.islink(os.path.join(folder, name))]:
                path = os.path.join(folder, name)
                if path in self._times:
                    os.utime(path, (self._times[path], self._times[path]), follow_symlinks=False)
            self._times[folder] = newest
            os.utime(folder, (newest, newest))
