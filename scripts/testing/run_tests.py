#!/usr/bin/env python3
"""Runs the test programs of a build under Wine, several processes at a time, and closes with one line of counts.

Suites run in processes of their own. A test that hangs or crashes is named, and the tests behind it still run.
A few that fail are run once more, each alone on a machine that is quiet by then: a test that passes now depends on
the load, which the closing lines say.
"""

import argparse
import os
import signal
import sys
import time
from concurrent.futures import ThreadPoolExecutor, as_completed
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))

from process import Result, Runner  # noqa: E402
from programs import Portion, Times, is_soak, list_tests, matches, split  # noqa: E402


# More failures than this have a cause that does not go away by running again.
FEW = 5


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--bin", type=Path, required=True, help="folder of the test programs")
    parser.add_argument("--soak", action="store_true", help="run the suites that take long, and only these")
    parser.add_argument("--jobs", type=int, default=int(os.environ.get("JOBS", os.cpu_count() or 2)))
    parser.add_argument("--limit", type=float, help="seconds that one test may take")
    parser.add_argument("filters", nargs="*", help="parts of names; without any, all tests run")
    return parser.parse_args()


def collect(args: argparse.Namespace, logs: Path, times: Times) -> list[Portion]:
    portions = []
    for program in sorted(args.bin.glob("*_tests.exe")):
        names = list_tests(program, logs / f"{program.stem}.list")
        chosen = [n for n in names if is_soak(n) == args.soak and matches(program, n, args.filters)]
        portions += split(program, chosen, times)
    return sorted(portions, key=lambda portion: -portion.seconds)


def report(portion: Portion, result: Result) -> None:
    if result.outcome != "failed":
        return
    print(f"FAILED {portion.program.stem}: {result.test}" + (f" ({result.reason})" if result.reason else ""))
    if result.log.strip():
        print("\n".join("    " + line for line in result.log.strip().splitlines()))
    sys.stdout.flush()


def run_again(runner: Runner, done: list[tuple[Portion, Result]]) -> list[str]:
    """Runs the few failed tests once more, each alone. Returns the names of those that pass now."""
    failed = [(portion, result) for portion, result in done if result.outcome == "failed"]
    if len(failed) > FEW:
        return []
    cured = []
    for portion, result in failed:
        alone = Portion(portion.program, portion.suite, (result.test,), result.seconds)
        again = runner.run(alone)
        if again and all(one.outcome == "passed" for one in again):
            result.outcome = "passed"
            cured.append(f"  {portion.program.stem}: {result.test}")
    return cured


def summary(done: list[tuple[Portion, Result]], cured: list[str], started: float) -> int:
    """Prints counts per program, the names of what failed, and the closing line. Returns the exit code."""
    programs = sorted({portion.program.stem for portion, _ in done})
    for program in programs:
        outcomes = [result.outcome for portion, result in done if portion.program.stem == program]
        print(f"{program:20} {outcomes.count('passed'):6} passed {outcomes.count('failed'):4} failed")
    print(f"{len(done)} tests in {time.monotonic() - started:.1f} s")
    if cured:
        print("Passed only when run again, alone:", *sorted(cured), sep="\n")
    failed = [f"  {portion.program.stem}: {result.test}" for portion, result in done if result.outcome == "failed"]
    if failed:
        print("Failed:", *sorted(failed), sep="\n")
    outcomes = [result.outcome for _, result in done]
    skipped = f", {outcomes.count('skipped')} skipped" if "skipped" in outcomes else ""
    print(f"{outcomes.count('passed')} passed, {outcomes.count('failed')} failed{skipped}")
    return 1 if failed else 0


def main() -> int:
    args = arguments()
    limit = args.limit or float(os.environ.get("TEST_TIMEOUT", 1800 if args.soak else 60))
    logs = args.bin.parent / "test-logs"
    times = Times(args.bin.parent / "test-times.json")
    runner = Runner(logs, limit)

    def stop(*_: object) -> None:
        signal.signal(signal.SIGINT, signal.SIG_IGN)
        signal.signal(signal.SIGTERM, signal.SIG_IGN)
        runner.end()
        os._exit(130)

    signal.signal(signal.SIGINT, stop)
    signal.signal(signal.SIGTERM, stop)

    started = time.monotonic()
    portions = collect(args, logs, times)
    if not portions:
        print("No test has such a name." if args.filters else "There is no test.")
        return 1
    done: list[tuple[Portion, Result]] = []
    with ThreadPoolExecutor(max_workers=max(1, args.jobs)) as pool:
        running = {pool.submit(runner.run, portion): portion for portion in portions}
        for future in as_completed(running):
            portion = running[future]
            for result in future.result():
                report(portion, result)
                times.store(portion.program, result.test, result.seconds)
                done.append((portion, result))
    times.save()
    return summary(done, run_again(runner, done), started)


if __name__ == "__main__":
    sys.exit(main())
