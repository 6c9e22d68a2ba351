"""A copy of the sources with a build of its own, which changed sources are compiled and linked against. A change touches
neither the copy nor its build: the changed object is linked in front of the libraries, whose own is then not taken."""

import hashlib
import json
import os
import re
import shutil
import subprocess
from pathlib import Path

# Of the logic's libraries, which take no precompiled header in the build itself.
STANDARD_HEADERS = (
    "algorithm array charconv cmath cstdint deque filesystem functional map memory optional span string string_view "
    "utility vector"
).split()
# The quick build of a change: warnings would only complain of what the change has left unused.
QUICK = "-w -O0"


def ran(command, folder):
    """Whether a command of the build works."""
    result = subprocess.run(
        command, shell=True, cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False
    )
    return result.returncode == 0


class Workshop:
    def __init__(self, top):
        self.top = Path(top)
        self.source = self.top / "build" / "mutate"
        self.build_folder = self.source / "build"  # as in the tree itself, so that the compiler cache knows it
        self.headers = self.build_folder / "quick"
        self.compile_commands = {}
        self.folders_of_programs = {}
        self.link_commands = {}
        self.parts = {}  # the objects that are linked into a program, by program

    def prepare(self):
        self.copy_sources()
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        command = ["cmake", "-S", self.source, "-B", self.build_folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release"]
        command += ["-DTARVEX_TESTS=ON", "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST", *launcher]
        # Each change links at least one program: the quickest linker that there is.
        linker = next((name for name in ("lld", "gold", "bfd") if shutil.which(f"ld.{name}")), "bfd")
        command.append(f"-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld={linker}")
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        for entry in json.loads((self.build_folder / "compile_commands.json").read_text()):
            path = Path(entry["file"])
            if path.is_relative_to(self.source):
                self.compile_commands.setdefault(str(path.relative_to(self.source)), []).append(entry["command"])
            if made := re.search(r" -o (tests/\S+)/CMakeFiles/(\w+_test)\.dir/", entry["command"]):
                self.folders_of_programs["bin/" + made.group(2)] = made.group(1)

    def copy_sources(self):
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

    def build(self, programs, jobs):
        command = ["ninja", "-C", self.build_folder, "-j", str(jobs), *programs]
        if subprocess.run(command, stdout=subprocess.DEVNULL, check=False).returncode != 0:
            raise SystemExit("The sources do not build without a change.")
        for program in programs:
            self.link_commands[program] = self.link_command(program)
            self.parts[program] = self.parts_of(program)

    # ---- what is linked into what ----

    def link_command(self, program):
        listed = subprocess.run(
            ["ninja", "-C", self.build_folder, "-t", "commands", "-s", program], capture_output=True, text=True, check=True
        )
        return next(part for part in listed.stdout.split("&&") if f" -o {program} " in part).strip()

    def parts_of(self, program):
        """The objects that the program really has in it, which the linker's map lists."""
        digest = hashlib.sha256((self.build_folder / program).read_bytes()).hexdigest()
        kept = self.headers / f"{Path(program).name}.parts"
        if kept.exists() and (known := json.loads(kept.read_text()))["digest"] == digest:
            return set(known["parts"])
        self.headers.mkdir(exist_ok=True)
        linked = self.headers / "linked"
        command = self.link_commands[program].replace(f" -o {program} ", f" -o {linked} -Wl,-Map={linked}.map ")
        subprocess.run(command, shell=True, cwd=self.build_folder, check=True)
        text = Path(f"{linked}.map").read_text(errors="replace")
        parts = set(re.findall(r"(?<![\w./])((?:src|tests)/\S+\.o)\b", text))
        for folder, library, member in re.findall(r"(?<![\w./])((?:src|tests)/\S+/)lib(\w+)\.a\(([^()\s]+\.o)\)", text):
            parts.add(f"{folder}CMakeFiles/{library}.dir/{member}")
        kept.write_text(json.dumps({"digest": digest, "parts": sorted(parts)}))
        return parts

    def programs_of(self, path):
        """The test programs that have the source in them."""
        objects = {self.object_of(command) for command in self.compile_commands.get(path, [])}
        return [program for program, parts in self.parts.items() if objects & parts]

    @staticmethod
    def object_of(command):
        return re.search(r" -o (\S+)", command).group(1)

    # ---- a change ----

    def precompiled(self, command):
        """The command with a precompiled header made for the quick build, in place of that of the build, if any."""
        theirs = re.search(r" -include (\S+cmake_pch\.hxx)", command)
        command = re.sub(r" -Winvalid-pch| -include \S+cmake_pch\.hxx", "", command)
        if theirs:
            text = Path(theirs.group(1)).read_text()
        else:
            text = "".join(f"#include <{name}>\n" for name in STANDARD_HEADERS)
        # Some options must be those of the source; the others don't matter.
        of_note = re.findall(r" (?:-f\S+|-std\S+)", command)
        name = hashlib.sha256((text + "".join(of_note)).encode()).hexdigest()[:12]
        header = self.headers / f"{name}.hxx"
        if not Path(f"{header}.gch").exists():
            self.headers.mkdir(exist_ok=True)
            header.write_text(text)
            # A macro of the header's making must be defined for each source, too: only those that all of them have.
            common = re.sub(r" -D(?!NDEBUG|QT_(?:CORE|GUI|WIDGETS|NO)_)\S+", "", command)
            made = re.sub(r" -o .*", f" -x c++-header {header} -o {header}.gch", common)
            if not ran(made, self.build_folder):
                raise SystemExit(f"The precompiled header {header} can't be made.")
        return f"{command} -include {header}"

    def quick_commands(self, path):
        """For each object of the source, how it is compiled quickly: past the compiler cache, which never sees the change
        again, and without optimisation, which takes longer than it gains."""
        for command in self.compile_commands.get(path, []):
            plain = re.sub(r" -M[FT] \S+| -MD\b", "", re.sub(r"^\S*ccache ", "", command)).replace(" -o ", f" {QUICK} -o ")
            yield self.object_of(command), self.precompiled(plain)

    def prepare_headers(self, paths):
        """Makes the precompiled headers, before several changes at once would each make them."""
        for path in paths:
            list(self.quick_commands(path))

    def compile(self, path, text, folder):
        """The objects of the changed source by the names of the unchanged ones; None when it doesn't compile."""
        changed = folder / Path(path).name
        changed.write_text(text, encoding="utf-8")
        original = self.source / path
        objects = {}
        for number, (name, command) in enumerate(self.quick_commands(path)):
            made = folder / f"{number}.o"
            command = command.replace(f" -o {name}", f" -o {made}").replace(str(original), str(changed))
            if not ran(f"{command} -iquote {original.parent}", self.build_folder):
                return None
            objects[name] = made
        return objects

    def link(self, program, objects, folder):
        """The program with the changed objects; None when it doesn't link."""
        linked = folder / Path(program).name
        command = self.link_commands[program]
        taken = [str(made) for name, made in objects.items() if name in self.parts[program]]
        for name, made in objects.items():
            command = command.replace(f" {name} ", " ")
        # A member of a library that is wanted in spite of the change, for what the change has left out of its object.
        command = command.replace(
            f" -o {program} ", f" {' '.join(taken)} -Wl,--allow-multiple-definition -o {linked} "
        )
        return linked if ran(command, self.build_folder) else None
