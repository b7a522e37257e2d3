#!/usr/bin/env python3
"""Checks the rules of the house: one line per check, and under a failing one what to mend.

lint.py           all checks
lint.py NAME...   these checks
lint.py --list    their names
"""

import sys
import time
from collections.abc import Callable, Iterator
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))

import code_checks  # noqa: E402
import text_checks  # noqa: E402
import tool_checks  # noqa: E402

Check = Callable[[], Iterator[str]]

CHECKS: dict[str, Check] = {
    "spaces": text_checks.spaces,
    "words": text_checks.words,
    "lengths": text_checks.lengths,
    "names": text_checks.names,
    "modes": text_checks.modes,
    "links": text_checks.links,
    "examples": text_checks.examples,
    "includes": code_checks.includes,
    "own-header": code_checks.own_header_first,
    "circles": code_checks.circles,
    "pragma-once": code_checks.pragma_once,
    "docstrings": code_checks.docstrings,
    "shared-state": code_checks.shared_state,
    "tests": code_checks.tests,
    "format": tool_checks.formatting,
    "shell": tool_checks.shell,
    "python": tool_checks.python,
    "clang": tool_checks.second_compiler,
    "headers": tool_checks.headers_alone,
    "artwork": tool_checks.artwork,
    "package": tool_checks.package,
}


def run(name: str) -> bool:
    started = time.monotonic()
    problems = list(CHECKS[name]())
    seconds = time.monotonic() - started
    took = f" ({seconds:.0f} s)" if seconds >= 1 else ""
    print(f"[{'FAIL' if problems else 'OK'}] {name}: {CHECKS[name].__doc__ or name}{took}")
    for problem in problems:
        print("    " + problem.replace("\n", "\n    "))
    sys.stdout.flush()
    return not problems


def main() -> int:
    wanted = sys.argv[1:]
    if wanted == ["--list"]:
        for name, check in CHECKS.items():
            print(f"{name:14} {check.__doc__}")
        return 0
    unknown = [name for name in wanted if name not in CHECKS]
    if unknown:
        print(f"There is no check {', '.join(unknown)}; --list names them.")
        return 2
    failed = [name for name in wanted or CHECKS if not run(name)]
    if failed:
        print(f"Failed: {', '.join(failed)}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
