"""Runs test programs, changed and unchanged ones, where they can do no harm."""

import hashlib
import itertools
import json
import os
import re
import signal
import subprocess
import time
from pathlib import Path

# The random tests try the same each time, and less than by themselves.
TEST_ENVIRONMENT = {"TARVEX_SEED": "1", "TARVEX_STEPS": "5000", "QT_QPA_PLATFORM": "offscreen"}
# A changed program may do anything: it sees a disk that it can't write to, but for a folder of its own, and no process
# of anybody else; memory and the length of files have a limit. Leaving ends what it has started.
CELL = ["unshare", *(["--user", "--map-root-user"] if os.geteuid() else []), "--mount", "--pid", "--fork", "--kill-child"]
# $1: its folder, $2: the program that stands where $3 is in the build.
IN_CELL = (
    "mount --make-rprivate / && mount -t proc proc /proc && mount -t tmpfs scratch /dev/shm && "
    'mount --bind "$2" "$3" && mount -t tmpfs -o size=1g scratch "$1" && mount --bind "$1" "$1" && '
    'mount -o remount,ro,bind / && export HOME="$1" TMPDIR="$1" XDG_RUNTIME_DIR="$1" && '
    'ulimit -v 8000000 && ulimit -f 1000000 && '
    'shift 2 && exec "$@"'
)
SLOW = 3  # seconds; a test above it waits for --slow


class Program:
    """A test program of the build: its tests, how long each takes, and which fail here without any change."""

    def __init__(self, name, folder):
        self.name = name
        self.folder = folder  # of its tests
        self.seconds = {}  # by test
        self.failing = []

    def tests(self, slow):
        return [test for test, seconds in self.seconds.items() if (slow or seconds <= SLOW) and test not in self.failing]

    def usual(self, tests):
        return sum(self.seconds[test] for test in tests)


def execute(shown, started, scratch, limit, arguments, fail_fast):
    """Runs a program in a cell, where it is seen as `shown`. Exit status, None when it didn't end, and output."""
    environment = {**os.environ, **TEST_ENVIRONMENT, "GTEST_FAIL_FAST": "1" if fail_fast else "0"}
    home = scratch / "home"
    home.mkdir(parents=True, exist_ok=True)
    command = [*CELL, "sh", "-c", IN_CELL, "sh", str(home), str(started), str(shown), *arguments]
    output = scratch / "output"
    with output.open("wb") as file:
        process = subprocess.Popen(
            command, stdin=subprocess.DEVNULL, stdout=file, stderr=subprocess.STDOUT, cwd=shown.parents[2],
            env=environment, start_new_session=True,
        )
        try:
            status = process.wait(timeout=limit)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            status = None
    return status, output.read_text(encoding="utf-8", errors="replace")


class Trial:
    def __init__(self, workshop, slow):
        self.workshop = workshop
        self.slow = slow
        self.programs = {}

    def learn(self, names, scratch):
        """Runs each program without a change, unless it is the same as the last time."""
        kept = self.workshop.headers / "learnt.json"
        known = json.loads(kept.read_text()) if kept.exists() else {}
        for name in names:
            path = self.workshop.build_folder / name
            digest = hashlib.sha256(path.read_bytes()).hexdigest()
            if known.get(name, {}).get("digest") != digest:
                status, output = execute(path, path, scratch, 1800, [str(path)], fail_fast=False)
                seconds, failing = results_of(output)
                if status not in (0, 1) or (status == 1 and not failing):
                    print(f"Not used, because it doesn't even run to its end without a change: {name}", flush=True)
                    continue
                known[name] = {"digest": digest, "seconds": seconds, "failing": failing}
                kept.write_text(json.dumps(known))
            program = self.programs[name] = Program(name, self.workshop.folders_of_programs.get(name, "tests"))
            program.seconds, program.failing = known[name]["seconds"], known[name]["failing"]

    def ordered(self, path, names):
        """The programs whose tests are nearest to the source first, the slow ones last."""
        def order(program):
            return -nearness(path, program), program.usual(program.tests(self.slow)), program.name

        return sorted((self.programs[name] for name in names if name in self.programs), key=order)

    def own_suites(self, path, program):
        """The suites that stand in the folder of the source's own tests, when the program has others beside them."""
        folder = Path("tests", *Path(path).parent.parts[1:])
        if not folder.is_relative_to(program.folder) or str(folder) == program.folder:
            return set()
        texts = [test.read_text(encoding="utf-8") for test in (self.workshop.source / folder).glob("*_test.cpp")]
        return {name for text in texts for name in re.findall(r"^TEST(?:_[FP])?\((\w+)", text, re.MULTILINE)}

    def stages(self, path, program):
        """The tests of the program in groups: those of the source's own folder, then the others."""
        own = self.own_suites(path, program)
        tests = program.tests(self.slow)
        near = [test for test in tests if own & set(test.split(".")[0].split("/"))]
        return [group for group in (near, [test for test in tests if test not in set(near)]) if group]

    def outcome(self, path, text, scratch, only=None):
        """("caught", by what), ("survived", "") or ("no build", "") for a changed source."""
        objects = self.workshop.compile(path, text, scratch)
        if objects is None:
            return "no build", ""
        names = [name for name in self.workshop.programs_of(path) if not only or name.removeprefix("bin/") in only]
        for program in self.ordered(path, names):
            linked = self.workshop.link(program.name, objects, scratch)
            if linked is None:
                return "no build", ""
            try:
                for tests in self.stages(path, program):
                    if failed := self.failure(program, linked, tests, scratch):
                        return "caught", f"{program.name.removeprefix('bin/')}: {failed}"
            finally:
                linked.unlink()
        return "survived", ""

    def failure(self, program, linked, tests, scratch):
        """The first test that fails, or what else goes wrong; "" when all pass."""
        shown = self.workshop.build_folder / program.name
        limit = 30 + 8 * program.usual(tests)
        arguments = [str(shown), "--gtest_filter=" + filter_of(tests, program)]
        status, output = execute(shown, linked, scratch, limit, arguments, fail_fast=True)
        if status is None:
            return "(no end)"
        failing = results_of(output)[1]
        return (failing[0] if failing else "(crash)") if status != 0 else ""


def filter_of(tests, program):
    """What selects the tests: whole suites where nothing of them is left out."""
    wanted, suites = set(tests), {}
    for test in program.seconds:
        suites.setdefault(test.split(".")[0], []).append(test)
    names = []
    for suite, members in suites.items():
        names += [f"{suite}.*"] if wanted.issuperset(members) else [test for test in members if test in wanted]
    return ":".join(names)


def results_of(output):
    """Seconds by test and the failed tests, of what a test program writes."""
    ended = re.findall(r"^\[ +(OK|FAILED) +\] (\S+?\.[^\s,]+),? .*\((\d+) ms\)$", output, re.MULTILINE)
    return {test: int(ms) / 1000 for _, test, ms in ended}, [test for state, test, _ in ended if state == "FAILED"]


def nearness(path, program):
    """How many folders the source and the tests have in common."""
    pairs = zip(Path(path).parent.parts[1:], Path(program.folder).parts[1:])
    return sum(1 for _ in itertools.takewhile(lambda pair: pair[0] == pair[1], pairs))
