"""The manual pages are well formed, and have the commands and options that the programs print themselves."""

import re
import unittest

from installation import INSTALLED, SHARE, program, run

PAGES = ("tarvex", "tarvex-open", "tarvexctl")


def page(name):
    return (SHARE / f"man/man1/{name}.1").read_text()


def options(text):
    return set(re.findall(r"(?<![\w-])--([a-z][a-z-]*)", text))


def options_of_page(text):
    """In a page the first "-" of an option is part of the macro."""
    marked = (line for line in text.splitlines() if " Fl " in line or line.startswith(".Fl "))
    return {name for line in marked for name in re.findall(r"(?<![\w-])-([a-z][a-z-]*)", line)}


def own_options(text):
    """The options that a help text lists, without those that every command has."""
    listed = re.findall(r"^\s+(?:-\w, ?)?--([a-z][a-z-]*)", text, re.MULTILINE)
    return set(listed) - {"help", "version"}


def commands_of_help():
    listed = program("tarvexctl", "--help").split("Subcommands:\n")[1].split("\n\n")[0]
    return re.findall(r"^  (\w+) ", listed, re.MULTILINE)


class Manual(unittest.TestCase):
    def test_the_pages_are_well_formed(self):
        for name in PAGES:
            complaints = run("mandoc", "-T", "lint", SHARE / f"man/man1/{name}.1").stdout.splitlines()
            # Which other manuals there are depends on the machine.
            kept = [line for line in complaints if "referenced manual not found" not in line and "mandoc.db" not in line]
            self.assertEqual(kept, [])

    def test_each_program_has_a_page(self):
        self.assertEqual(sorted(file.name for file in (INSTALLED / "bin").iterdir()), sorted(PAGES))
        self.assertEqual(sorted(file.stem for file in (SHARE / "man/man1").iterdir()), sorted(PAGES))

    def test_the_pages_of_the_programs_with_a_window_have_the_options_of_their_help(self):
        for name in ("tarvex", "tarvex-open"):
            self.assertEqual(options_of_page(page(name)) - {"h"}, options(program(name, "--help")))

    def test_the_page_of_tarvexctl_has_the_commands_of_its_help(self):
        synopsis = page("tarvexctl").split(".Sh DESCRIPTION")[0]
        described = re.findall(r"^\.It Cm (\w+)$", page("tarvexctl").split(".Sh JSON")[0], re.MULTILINE)
        self.assertEqual(re.findall(r"^\.Nm\n\.Cm (\w+)$", synopsis, re.MULTILINE), commands_of_help())
        self.assertEqual(described, commands_of_help())

    def test_the_synopsis_of_each_command_has_the_options_of_its_help(self):
        synopsis = page("tarvexctl").split(".Sh SYNOPSIS")[1].split(".Sh DESCRIPTION")[0]
        parts = dict(re.findall(r"\.Cm (\w+)\n(.*?)(?=\.Nm|\Z)", synopsis, re.DOTALL))
        for command in commands_of_help():
            with self.subTest(command):
                help_text = program("tarvexctl", command, "--help").split("\n\nPositionals")[-1]
                self.assertEqual(options_of_page(parts[command]), own_options(help_text))


if __name__ == "__main__":
    unittest.main()
