"""The completions of the shells have what the programs take, and the shells complete by them."""

import os
import pty
import re
import select
import subprocess
import tempfile
import unittest
from pathlib import Path

from installation import SHARE, SOURCES, environment, output, program

ROWS = [[cell.strip() for cell in line.split("|")]
        for line in (SOURCES / "packaging/completions/table.txt").read_text().splitlines()
        if line and not line.startswith("#")]
FILES = {"bash": SHARE / "bash-completion/completions", "fish": SHARE / "fish/vendor_completions.d",
         "zsh": SHARE / "zsh/site-functions"}


def options_of(command):
    return sorted(row[2] for row in ROWS if row[:2] == ["tarvexctl", command] and row[2])


def listed_options(help_text):
    return sorted(re.findall(r"^\s+(?:-\w, ?)?(--[a-z][a-z-]*)", help_text, re.MULTILINE))


class Table(unittest.TestCase):
    def test_it_has_the_commands_of_the_help(self):
        subcommands = program("tarvexctl", "--help").split("Subcommands:\n")[1].split("\n\n")[0]
        named = [row[1] for row in ROWS if row[0] == "tarvexctl" and row[1] and not row[2]]
        self.assertEqual(named, re.findall(r"^  (\w+) ", subcommands, re.MULTILINE))

    def test_it_has_the_options_of_the_help(self):
        for command in sorted({row[1] for row in ROWS if row[0] == "tarvexctl"}):
            with self.subTest(command):
                words = [command] if command else []
                self.assertEqual(options_of(command), listed_options(program("tarvexctl", *words, "--help")))
        own = sorted(row[2] for row in ROWS if row[0] == "tarvex" and row[2])
        self.assertEqual(own, listed_options(program("tarvex", "--help")))

    def test_it_has_the_words_that_an_option_takes(self):
        for _, command, option, value, _ in ROWS:
            if value.startswith("("):
                listed = re.search(option + r" TEXT:\{(.*)\}", program("tarvexctl", command, "--help"))
                self.assertEqual(value.strip("()").split(), listed.group(1).split(","))


class Shell:
    """A folder with a file of each kind, in which a shell completes a line."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "files"
        for name in ("mig.b50", "MIG.M50", "readme.txt", "folder/lance.f22"):
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            (self.folder / name).write_text("")

    def test_commands_and_options(self):
        self.assertEqual(self.complete("tarvexctl col"), ["colour"])
        self.assertEqual(self.complete("tarvexctl key --js"), ["--json"])
        self.assertEqual(self.complete("tarvexctl --ver"), ["--version"])
        self.assertEqual(self.complete("tarvex --v"), ["--version"])

    def test_words_that_an_option_takes(self):
        self.assertEqual(self.complete("tarvexctl colour --as m"), ["macro"])
        self.assertEqual(self.complete("tarvexctl key --joystick f2"), ["f22"])

    def test_files(self):
        self.assertEqual(self.complete("tarvex m"), ["mig.b50"])
        self.assertEqual(self.complete("tarvexctl macros M"), ["MIG.M50"])
        self.assertEqual(self.complete("tarvexctl used mig.b50 M"), ["MIG.M50"])
        self.assertEqual(self.complete("tarvex folder/l"), ["folder/lance.f22"])
        self.assertEqual(self.complete("tarvexctl colour --ini r"), ["readme.txt"])


class Bash(Shell, unittest.TestCase):
    def complete(self, line):
        words = line.split(" ")
        script = (f'source "{FILES["bash"]}/{words[0]}"; COMP_WORDS=({" ".join(words)}); '
                  f'COMP_CWORD={len(words) - 1}; _{words[0]}; printf "%s\\n" "${{COMPREPLY[@]}}"')
        return sorted(output("bash", "--norc", "-c", script, cwd=self.folder).split())

    def test_all_that_fit_are_offered(self):
        self.assertEqual(self.complete("tarvexctl key --j"), ["--joystick", "--json"])

    def test_files_of_other_kinds_only_where_there_is_none_of_the_right_one(self):
        (self.folder / "migration.txt").write_text("")
        self.assertEqual(self.complete("tarvex mi"), ["mig.b50"])
        self.assertEqual(self.complete("tarvex migr"), ["migration.txt"])


class Fish(Shell, unittest.TestCase):
    def complete(self, line):
        script = f'source "{FILES["fish"]}/{line.split()[0]}.fish"; complete -C "{line}"'
        found = output("fish", "--no-config", "-c", script, cwd=self.folder,
                       env=environment(HOME=self.folder.parent, XDG_DATA_DIRS="/usr/share"), stderr=subprocess.DEVNULL)
        names = [entry.split("\t")[0] for entry in found.splitlines()]
        return sorted(name for name in names if name.startswith(line.split(" ")[-1]))


class Zsh(Shell, unittest.TestCase):
    """zsh completes only what is typed: on a terminal of its own, with functions in place of the programs, which print
    the arguments that the line has in the end."""

    LIMIT = 30  # seconds

    def complete(self, line):
        child, self.terminal = pty.fork()
        if child == 0:
            os.chdir(self.folder)
            os.execvpe("zsh", ["zsh", "-f", "-i"], environment(HOME=self.folder.parent, TERM="dumb", LC_ALL="C.UTF-8"))
        try:
            self.type(f'fpath=("{FILES["zsh"]}" $fpath); autoload -U compinit; compinit -u -D; '
                      "for name in tarvex tarvexctl; do functions[$name]='print -r \"LAST<${@[-1]}>\"'; done; "
                      "print REA''DY\n")
            self.read_until("READY")
            self.type(line + "\t\n")
            return [re.search("LAST<(.*)>", self.read_until("LAST<.*>")).group(1)]
        finally:
            os.close(self.terminal)
            os.waitpid(child, 0)

    def type(self, text):
        os.write(self.terminal, text.encode())

    def read_until(self, pattern):
        seen = ""
        while not re.search(pattern, seen):
            if not select.select([self.terminal], [], [], self.LIMIT)[0]:
                self.fail("zsh is silent after " + seen)
            seen += os.read(self.terminal, 65536).decode(errors="replace")
        return seen

    def test_files_of_other_kinds_only_where_there_is_none_of_the_right_one(self):
        (self.folder / "migration.txt").write_text("")
        self.assertEqual(self.complete("tarvex mi"), ["mig.b50"])
        self.assertEqual(self.complete("tarvex migr"), ["migration.txt"])


if __name__ == "__main__":
    unittest.main()
