"""A copy of the sources with a build of its own, where a single change is built and tested."""

import hashlib
import itertools
import json
import os
import re
import shutil
import signal
import subprocess
import time
from pathlib import Path

# The random tests try the same each time, and less than by themselves.
TEST_ENVIRONMENT = {"TARVEX_SEED": "1", "TARVEX_STEPS": "5000", "GTEST_FAIL_FAST": "1", "QT_QPA_PLATFORM": "offscreen"}
# A changed program may do anything: it sees a disk that it can't write to, but for a folder of its own, and no process
# of anybody else. Leaving ends what it has started.
CELL = ["unshare", *(["--user", "--map-root-user"] if os.geteuid() else []), "--mount", "--pid", "--fork", "--kill-child"]
IN_CELL = (
    "mount --make-rprivate / && mount -t proc proc /proc && mount -t tmpfs scratch /dev/shm && "
    'mount -t tmpfs scratch "$1" && mount --bind "$1" "$1" && mount -o remount,ro,bind / && '
    'export HOME="$1" TMPDIR="$1" && shift && exec "$@"'
)


def quick(command):
    """The command past the compiler cache, which never sees the change again, and without optimisation, which takes longer
    than it gains. A precompiled header asks for the options that it was made with."""
    command = re.sub(r"^\S*ccache ", "", command) + " -w"
    return command if "cmake_pch" in command else command + " -O0"


class Workshop:
    def __init__(self, top, jobs, tests=None):
        self.top = Path(top)
        self.jobs = jobs
        self.tests = tests  # the only test programs that are built and run; all without them
        self.source = self.top / "build" / "mutate"
        self.build_folder = self.source / "build"  # as in the tree itself, so that the compiler cache knows it
        self.scratch = self.build_folder / "scratch"
        self.compile_commands = {}
        self.folders_of_programs = {}
        self.dependents_of = {}
        self.usual_seconds = {}
        self.not_run = {}  # tests that fail without any change, by program

    def prepare(self):
        self.copy_sources()
        self.scratch.mkdir(parents=True, exist_ok=True)
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        command = ["cmake", "-S", self.source, "-B", self.build_folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release"]
        # Listing its tests would run a changed program outside of its cell.
        command += ["-DTARVEX_TESTS=ON", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST", *launcher]
        # Each change links at least one program: the quickest linker that there is.
        linker = next((name for name in ("lld", "gold", "bfd") if shutil.which(f"ld.{name}")), "bfd")
        command.append(f"-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld={linker}")
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        for entry in json.loads((self.build_folder / "compile_commands.json").read_text()):
            path = Path(entry["file"])
            if path.is_relative_to(self.source):
                self.compile_commands.setdefault(str(path.relative_to(self.source)), []).append(entry)
            if made := re.search(r" -o (tests/\S+)/CMakeFiles/(\w+)\.dir/", entry["command"]):
                self.folders_of_programs[made.group(2)] = made.group(1)

    def copy_sources(self):
        """Brings the copy up to date, whatever an interrupted run has left in it."""
        listed = subprocess.run(
            ["git", "-C", self.top, "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            check=True,
            capture_output=True,
            text=True,
        )
        names = {name for name in listed.stdout.split("\0") if name and (self.top / name).is_file()}
        for name in names:
            original, copy = self.top / name, self.source / name
            if not copy.is_file() or copy.read_bytes() != original.read_bytes():
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(original, copy)
        for folder, inner, files in os.walk(self.source):
            if Path(folder) == self.source and "build" in inner:
                inner.remove("build")
            for copy in (Path(folder) / name for name in files):
                if str(copy.relative_to(self.source)) not in names:
                    copy.unlink()

    # ---- the graph of the build ----

    def dependents(self, target):
        """What the build makes from the target, directly or not; the test programs and libraries among it."""
        known = self.dependents_of.get(target)
        if known is not None:
            return known
        self.dependents_of[target] = set()  # a circle ends here
        found = set()
        for output in self.outputs(target):
            if output.endswith(".a") or output.startswith("bin/"):
                found |= {output} | self.dependents(output)
        self.dependents_of[target] = found
        return found

    def outputs(self, target):
        listed = subprocess.run(
            ["ninja", "-C", self.build_folder, "-t", "query", target], capture_output=True, text=True, check=False
        )
        lines = listed.stdout.split("  outputs:\n")
        return [line.strip() for line in lines[-1].splitlines()] if len(lines) > 1 else []

    def objects(self, path):
        """The object files that are compiled from a source."""
        entries = self.compile_commands.get(path, [])
        return [re.search(r" -o (\S+)", entry["command"]).group(1) for entry in entries]

    def folder_of(self, program):
        """The folder of the program's tests."""
        return self.folders_of_programs.get(program.removeprefix("bin/"), "tests")

    def nearness(self, path, program):
        """How many folders the source and the tests have in common."""
        pairs = zip(Path(path).parent.parts[1:], Path(self.folder_of(program)).parts[1:])
        return sum(1 for _ in itertools.takewhile(lambda pair: pair[0] == pair[1], pairs))

    def test_programs(self, path):
        """Those that link the source: the ones nearest to it first, the slow ones last."""
        programs = set()
        for made in self.objects(path):
            programs |= {name for name in self.dependents(made) if name.startswith("bin/") and name.endswith("_test")}
        if self.tests:
            programs = {name for name in programs if name.removeprefix("bin/") in self.tests}
        return sorted(programs, key=lambda name: (-self.nearness(path, name), self.usual_seconds.get(name, 0), name))

    def own_suites(self, path, program):
        """The suites that stand in the folder of the source's own tests, when the program has others beside them."""
        folder = Path("tests", *Path(path).parent.parts[1:])
        if not folder.is_relative_to(self.folder_of(program)) or str(folder) == self.folder_of(program):
            return []
        texts = [test.read_text(encoding="utf-8") for test in (self.source / folder).glob("*_test.cpp")]
        return sorted({name for text in texts for name in re.findall(r"^TEST(?:_[FP])?\((\w+)", text, re.MULTILINE)})

    def all_test_programs(self, paths):
        return sorted({program for path in paths for program in self.test_programs(path)})

    # ---- building and testing ----

    def build(self, targets):
        command = ["ninja", "-C", self.build_folder, "-j", str(self.jobs), *targets]
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode == 0

    def run(self, program, limit, fail_fast=True, suites=()):
        """Runs all tests of the program, or those of some suites. The names of the tests that failed, none when all passed; ["..."] for a crash or an endless run."""
        environment = {**os.environ, **TEST_ENVIRONMENT}
        if not fail_fast:
            environment["GTEST_FAIL_FAST"] = "0"
        command = [*CELL, "sh", "-c", IN_CELL, "sh", str(self.scratch), str(self.build_folder / program)]
        command.append("--gtest_brief=1")
        command.append("--gtest_filter=" + (":".join(f"{suite}.*" for suite in suites) or "*"))
        if self.not_run.get(program):
            command[-1] += "-" + ":".join(self.not_run[program])
        process = subprocess.Popen(
            command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, cwd=self.source, env=environment, text=True,
            errors="replace", start_new_session=True,
        )
        try:
            output, _ = process.communicate(timeout=limit)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            return ["(no end)"]
        if process.returncode == 0:
            return []
        failed = {line.split()[3].rstrip(",") for line in output.splitlines() if line.startswith("[  FAILED  ] ") and "." in line and len(line.split()) > 3}
        return sorted(failed) or ["(crash)"]

    def learn(self, programs):
        """How long each takes, and which tests fail here without any change. Kept for programs that stay the same."""
        kept = self.build_folder / "learnt.json"
        known = json.loads(kept.read_text()) if kept.exists() else {}
        for program in programs:
            digest = hashlib.sha256((self.build_folder / program).read_bytes()).hexdigest()
            if known.get(program, {}).get("digest") != digest:
                begun = time.monotonic()
                failed = self.run(program, limit=1800, fail_fast=False)
                if failed in (["(crash)"], ["(no end)"]):
                    raise SystemExit(f"{program} does not even run without a change.")
                known[program] = {"digest": digest, "seconds": time.monotonic() - begun, "failed": failed}
                kept.write_text(json.dumps(known))
            self.usual_seconds[program] = known[program]["seconds"]
            self.not_run[program] = known[program]["failed"]

    def limit(self, program):
        return 30 + 8 * self.usual_seconds[program]

    def compile(self, path):
        """Compiles the source as the build does, but quicker and without warnings: a change may leave something unused."""
        return all(
            subprocess.run(
                quick(entry["command"]),
                shell=True,
                cwd=entry["directory"],
                stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL,
                check=False,
            ).returncode
            == 0
            for entry in self.compile_commands[path]
        )

    def try_change(self, change, programs):
        """("caught", by what), ("survived", "") or ("no build", "")."""
        copy = self.source / change.path
        objects = [self.build_folder / name for name in self.objects(change.path)]
        originals = [(made, made.read_bytes()) for made in objects]
        original, times = copy.read_text(encoding="utf-8"), copy.stat()
        try:
            copy.write_text(change.applied(original), encoding="utf-8")
            os.utime(copy, ns=(times.st_atime_ns, times.st_mtime_ns))  # the build has nothing to compile
            if not self.compile(change.path):
                return "no build", ""
            return self.first_failure(change.path, programs)
        finally:
            copy.write_text(original, encoding="utf-8")
            os.utime(copy, ns=(times.st_atime_ns, times.st_mtime_ns))
            for made, contents in originals:
                made.write_bytes(contents)

    def first_failure(self, path, programs):
        for program in programs:
            if not self.build([program]):
                return "no build", ""
            own = self.own_suites(path, program)
            failed = (own and self.run(program, self.limit(program), suites=own)) or self.run(program, self.limit(program))
            if failed:
                return "caught", f"{program.removeprefix('bin/')}: {failed[0]}"
        return "survived", ""
