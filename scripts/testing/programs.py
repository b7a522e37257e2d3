"""Test programs: what they contain, and how their tests are split into portions that run side by side."""

import fnmatch
import json
import subprocess
from dataclasses import dataclass
from pathlib import Path

PORTION_SECONDS = 8.0
UNKNOWN_SECONDS = 0.05


@dataclass(frozen=True)
class Portion:
    """Tests of one suite, run by one process."""

    program: Path
    suite: str
    tests: tuple[str, ...]
    seconds: float


def list_tests(program: Path, output: Path) -> list[str]:
    """Names of all tests of a program, as Suite.Test."""
    with output.open("wb") as sink:
        subprocess.run(["wine", str(program), "--gtest_list_tests"], stdin=subprocess.DEVNULL, stdout=sink,
                       stderr=subprocess.STDOUT, timeout=60, check=True)
    names, suite = [], ""
    for line in output.read_text(errors="replace").splitlines():
        name = line.split("#")[0].strip()
        if line.startswith(" ") and suite:
            names.append(suite + name)
        elif name.endswith("."):
            suite = name
    return names


def is_soak(test: str) -> bool:
    """Suites whose name ends in Soak take long and run by a command of their own."""
    return test.split(".")[0].split("/")[-1].endswith("Soak")


def matches(program: Path, test: str, wanted: list[str]) -> bool:
    """Whether any of the filters is part of the test's name or its program's; * and ? match as in file names."""
    name = f"{program.stem}:{test}".lower()
    return not wanted or any(fnmatch.fnmatchcase(name, f"*{w.lower()}*") for w in wanted)


class Times:
    """How long each test took the last time, kept beside the build."""

    def __init__(self, path: Path):
        self.path = path
        try:
            self.seconds = json.loads(path.read_text())
        except (OSError, ValueError):
            self.seconds = {}

    def of(self, program: Path, test: str) -> float:
        return self.seconds.get(f"{program.stem}:{test}", UNKNOWN_SECONDS)

    def store(self, program: Path, test: str, seconds: float) -> None:
        self.seconds[f"{program.stem}:{test}"] = round(seconds, 3)

    def save(self) -> None:
        self.path.write_text(json.dumps(self.seconds, indent=0, sort_keys=True))


def split(program: Path, tests: list[str], times: Times) -> list[Portion]:
    """Portions of whole suites; a suite that takes long makes several."""
    suites: dict[str, list[str]] = {}
    for test in tests:
        suites.setdefault(test.rsplit(".", 1)[0], []).append(test)
    portions = []
    for suite, members in suites.items():
        portion: list[str] = []
        seconds = 0.0
        for test in members:
            expected = times.of(program, test)
            if portion and seconds + expected > PORTION_SECONDS:
                portions.append(Portion(program, suite, tuple(portion), seconds))
                portion, seconds = [], 0.0
            portion.append(test)
            seconds += expected
        portions.append(Portion(program, suite, tuple(portion), seconds))
    return portions
