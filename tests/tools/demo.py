"""Makes demo homes for tests."""

import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))
HOSTS = ("linux", "mac")


def run(*arguments) -> subprocess.CompletedProcess:
    command = [sys.executable, "-B", SOURCE / "tools/demo-home", *arguments]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def environment(printed: str) -> dict[str, str]:
    """What demo-home printed, as a process takes it."""
    return dict(shlex.split(line)[0].split("=", 1) for line in printed.splitlines())


class DemoHome:
    """A demo home that goes with the object's context; on a real disk, as that is where blocks mean something."""

    def __init__(self, host: str):
        self._folder = tempfile.TemporaryDirectory(prefix="tarnwick-demo-", dir="/var/tmp")
        self.top = pathlib.Path(self._folder.name) / "demo"
        done = run(self.top, "--host", host)
        if done.returncode != 0:
            raise RuntimeError(done.stderr)
        self.env = environment(done.stdout)
        self.expected = json.loads((self.top / "demo-home.json").read_text())

    def __enter__(self) -> "DemoHome":
        return self

    def __exit__(self, *_) -> None:
        self._folder.cleanup()
