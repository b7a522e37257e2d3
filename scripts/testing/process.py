"""One portion of tests in one process: started, watched, ended when a test hangs, its log read."""

import os
import re
import signal
import subprocess
import time
from dataclasses import dataclass, field
from pathlib import Path

from programs import Portion

# Codes under which a crash reaches us from Wine (the low byte of the Windows code).
CRASHES = {5: "access violation", 29: "illegal instruction or undefined behaviour", 53: "a DLL was not found",
           148: "division by zero", 98: "took too long", 3: "abort or uncaught exception", 99: "unhandled exception", 253: "stack overflow"}

GRACE = 10.0  # seconds

STARTED = re.compile(r"\[ RUN      \] (\S+)")
ENDED = re.compile(r"\[(       OK |  FAILED  |  SKIPPED )\] ([^\s,]+)(?:.*\((\d+) ms\))?")


@dataclass
class Result:
    test: str
    outcome: str  # passed, failed or skipped
    seconds: float = 0.0
    reason: str = ""
    log: str = ""


@dataclass
class Log:
    """Reads the log of a running test program and knows which test is running."""

    path: Path
    offset: int = 0
    rest: str = ""
    running: str = ""
    since: float = 0.0
    lines: list[str] = field(default_factory=list)
    results: list[Result] = field(default_factory=list)

    def read(self) -> None:
        with self.path.open("rb") as source:
            source.seek(self.offset)
            data = source.read()
        self.offset += len(data)
        *lines, self.rest = (self.rest + data.decode(errors="replace")).split("\n")
        for line in lines:
            self.take(line.rstrip("\r"))

    def take(self, line: str) -> None:
        if start := STARTED.search(line):
            self.running, self.since, self.lines = start[1], time.monotonic(), []
        elif self.running and (end := ENDED.search(line)) and end[2] == self.running:
            outcome = {"OK": "passed", "FAILED": "failed", "SKIPPED": "skipped"}[end[1].strip()]
            self.close(outcome, seconds=float(end[3] or 0) / 1000)
        else:
            self.lines.append(line)

    def close(self, outcome: str, reason: str = "", seconds: float = 0.0) -> None:
        self.results.append(Result(self.running, outcome, seconds, reason, "\n".join(self.lines)))
        self.running, self.lines = "", []


class Runner:
    """Runs portions, from several threads at a time."""

    def __init__(self, folder: Path, limit: float):
        self.folder = folder
        self.limit = limit
        self.ending = False
        self.processes: set[subprocess.Popen] = set()
        folder.mkdir(parents=True, exist_ok=True)

    def run(self, portion: Portion) -> list[Result]:
        """Results of all tests of the portion. After a hang or a crash the tests behind it get a new process."""
        results: list[Result] = []
        waiting = list(portion.tests)
        while waiting and not self.ending:
            done = self.run_process(portion.program, waiting)
            if not done:
                done = [Result(waiting[0], "failed", 0, "the program ended before this test")]
            results += done
            finished = {result.test for result in done}
            waiting = [test for test in waiting if test not in finished]
        return results

    def run_process(self, program: Path, tests: list[str]) -> list[Result]:
        base = self.folder / f"{program.stem}-{time.monotonic_ns()}"
        flags, output = base.with_suffix(".flags"), base.with_suffix(".log")
        # Names of tests may be longer than a command line can be.
        flags.write_text("--gtest_filter=" + ":".join(tests) + "\n")
        with output.open("wb") as sink:
            # The program itself ends a test that takes too long; should it be unable to, we do, a little later.
            process = subprocess.Popen(["wine", str(program), f"--gtest_flagfile={flags}", "--gtest_color=no"],
                                       stdin=subprocess.DEVNULL, stdout=sink, stderr=subprocess.STDOUT,
                                       start_new_session=True,
                                       env=os.environ | {"TEST_TIMEOUT": f"{self.limit:.0f}"})
        self.processes.add(process)
        log = Log(output, since=time.monotonic())
        try:
            self.watch(process, log, tests)
        finally:
            self.kill(process)
            self.processes.discard(process)
            flags.unlink()
            output.unlink()
        return log.results

    def watch(self, process: subprocess.Popen, log: Log, tests: list[str]) -> None:
        pause = 0.005
        while process.poll() is None and not self.ending:
            time.sleep(pause)
            pause = min(pause * 1.5, 0.1)
            log.read()
            if time.monotonic() - log.since > self.limit + GRACE:
                self.kill(process)
                log.read()
                self.blame(log, tests, f"hung: ended after {self.limit:g} s")
                return
        log.read()
        code = process.returncode
        if code is None:
            return
        if log.running:
            self.blame(log, tests, f"crashed: exit code {code}" + (f", {CRASHES[code]}" if code in CRASHES else ""))
        elif code != 0 and not log.results:
            self.blame(log, tests, f"the program ended with exit code {code} before its first test")
        elif code != 0 and all(result.outcome == "passed" for result in log.results):
            self.blame(log, tests, f"the program ended with exit code {code} after this test")

    @staticmethod
    def blame(log: Log, tests: list[str], reason: str) -> None:
        """Gives the failure to the test that was running, else to the last one that ran, else to the first."""
        if log.rest:
            log.lines.append(log.rest)
        if log.running:
            log.close("failed", reason, time.monotonic() - log.since)
        elif log.results:
            last = log.results[-1]
            last.outcome, last.reason, last.log = "failed", reason, "\n".join([last.log, *log.lines])
        else:
            log.results.append(Result(tests[0], "failed", 0, reason, "\n".join(log.lines)))

    @staticmethod
    def kill(process: subprocess.Popen) -> None:
        if process.poll() is None:
            signal_group(process)
            process.wait()

    def end(self) -> None:
        """Ends what is running and waits for nothing, so that a signal handler may call it."""
        self.ending = True
        for process in list(self.processes):
            signal_group(process)


def signal_group(process: subprocess.Popen) -> None:
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
