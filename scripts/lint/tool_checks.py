"""Checks that other programs do: the formatter, the second compiler, the shell checker, the artwork's generator."""

import os
import re
import shutil
import subprocess
from collections.abc import Iterator

import tree


def run(*command: str, **environment: str) -> tuple[int, str]:
    """Exit code and output. Through a file descriptor of our own, never a pipe: see scripts/wine-run."""
    log = tree.ROOT / "build" / "lint.log"
    log.parent.mkdir(exist_ok=True)
    with log.open("wb") as sink:
        code = subprocess.run(command, cwd=tree.ROOT, stdin=subprocess.DEVNULL, stdout=sink, stderr=subprocess.STDOUT,
                              env=os.environ | environment, check=False).returncode
    return code, log.read_text(errors="replace")


def formatting() -> Iterator[str]:
    """Sources are formatted by clang-format"""
    sources = tree.with_suffix(*tree.CODE)
    for start in range(0, len(sources), 100):
        _, output = run("clang-format", "--dry-run", *sources[start:start + 100])
        seen = dict.fromkeys(re.findall(r"^(\S+?):\d+:\d+: warning", output, re.MULTILINE))
        for path in seen:
            yield f"{path}: run clang-format -i {path}"


def shell() -> Iterator[str]:
    """Shell scripts are clean"""
    scripts = [path for path in tree.files() if tree.text(path).startswith(("#!/bin/bash", "#!/bin/sh"))]
    code, output = run("shellcheck", "-x", *scripts, *tree.with_suffix(".sh"))
    if code:
        yield output.strip()


def python() -> Iterator[str]:
    """Python scripts can be read by Python"""
    for path in tree.files():
        if path.endswith(".py") or tree.text(path).startswith("#!/usr/bin/env python3"):
            try:
                compile(tree.text(path), path, "exec")
            except SyntaxError as error:
                yield f"{path}:{error.lineno}: {error.msg}"


def clang(target: str) -> Iterator[str]:
    code, output = run("./run", "build", target, PRESET="clang", BUILD_FLAGS="-k 0")
    if not code:
        return
    errors = re.findall(r"^(\S+?:\d+:\d+: (?:fatal )?error: .*)$", output, re.MULTILINE)
    root = f"{tree.ROOT}/"
    yield from dict.fromkeys(error.replace(root, "") for error in errors)
    if not errors:
        yield output.strip()


def second_compiler() -> Iterator[str]:
    """Everything compiles without warnings with clang too"""
    yield from clang("all")


def headers_alone() -> Iterator[str]:
    """Each header compiles on its own"""
    yield from clang("all_verify_interface_header_sets")


def artwork() -> Iterator[str]:
    """The bitmaps are what their generator draws"""
    if not (tree.ROOT / "resources" / "skinart").is_dir():
        return
    code, output = run("./run", "artwork", "--check")
    if code:
        yield output.strip()


def package() -> Iterator[str]:
    """The examples build against the installed package, as a host outside the tree would"""
    steps = (
        ("./run", "build"),
        ("cmake", "--install", "build/mingw", "--prefix", "build/package"),
        ("cmake", "-S", "examples", "-B", "build/examples", "-G", "Ninja",
         "--toolchain", str(tree.ROOT / "cmake" / "toolchain-mingw.cmake"),
         f"-DQV7Skin_DIR={tree.ROOT / 'build' / 'package' / 'lib' / 'cmake' / 'QV7Skin'}"),
        ("cmake", "--build", "build/examples"),
    )
    shutil.rmtree(tree.ROOT / "build" / "package", ignore_errors=True)
    for step in steps:
        code, output = run(*step)
        if code:
            yield output.strip()
            return
