"""The files of the tree, as the checks see them: tracked or about to be."""

import functools
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CODE = (".h", ".cpp")
BINARY = (".bmp", ".png", ".ico", ".jpg")


@functools.cache
def files() -> tuple[str, ...]:
    """Paths from the root, with forward slashes, in order."""
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                            stdout=subprocess.PIPE, check=True).stdout.decode()
    return tuple(sorted(path for path in set(listed.split("\0")) if path and (ROOT / path).is_file()))


def with_suffix(*suffixes: str) -> list[str]:
    return [path for path in files() if path.endswith(suffixes)]


def texts() -> list[str]:
    return [path for path in files() if not path.endswith(BINARY)]


@functools.cache
def text(path: str) -> str:
    return (ROOT / path).read_text(encoding="utf-8", errors="replace")


def lines(path: str) -> list[str]:
    return text(path).splitlines()


def below(path: str, folders: tuple[str, ...]) -> bool:
    """Whether the path lies in one of the folders."""
    return any(path.startswith(folder + "/") for folder in folders)
