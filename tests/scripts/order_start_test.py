"""Runs parts of scripts/order-start:  order_start_test.py SCRIPT"""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = sys.argv.pop()

# A library calls back into the program; names in brackets stand for those that were given before.
TRACE = """\
events: Ir
fl=(1) ???
ob=(1) /tmp/tarvex
fn=(1) _Z4openv
0 12
cob=(2) /usr/lib/libQt6Core.so.6
cfn=(2) _ZN7QObjectC1Ev
calls=1 0
0 30
fn=(3) _Z4readv'2
0 5
ob=(2)
fn=(2)
0 30
cob=(1)
cfn=(4) _Z5paintv
calls=2 0
0 9
fn=(5) _ZN7QObjectD1Ev
0 1
ob=(1)
fn=(4)
0 9
fn=(1)
0 3
"""


class OrderStart(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def run_script(self, *arguments):
        environment = os.environ | {"PATH": f"{self.root}:{os.environ['PATH']}"}
        return subprocess.run([SCRIPT, *map(str, arguments)], capture_output=True, text=True, timeout=60, env=environment)

    def check(self, listed, in_the_program):
        """A list of functions against a program whose symbols nm prints."""
        symbols = "".join(f"0000000000001000 T {name}\\n" for name in in_the_program)
        nm = self.root / "nm"
        nm.write_text(f"#!/bin/sh\nprintf '{symbols}'\n")
        nm.chmod(0o755)
        order = self.root / "order.ld"
        order.write_text("SECTIONS\n{\n    *(" + " ".join(listed) + ")\n}\n")
        return self.run_script("--check", "program", order)

    def test_functions_of_the_program_count_and_those_of_libraries_do_not(self):
        (self.root / "trace").write_text(TRACE)
        done = self.run_script("--functions", self.root / "trace", "/tmp/tarvex")
        self.assertEqual(done.stdout.split(), ["_Z4openv", "_Z4readv", "_Z5paintv"], done.stderr)

    def test_a_list_of_functions_that_are_there_passes(self):
        done = self.check([".text._Z1av", ".text.startup._GLOBAL__sub_I_b"], ["_Z1av", "_GLOBAL__sub_I_b", "_Z1cv"])
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        self.assertIn("2 of 2", done.stdout)

    def test_a_list_passes_until_less_than_seven_of_ten_functions_are_left(self):
        names = [f"_Z1{letter}v" for letter in "abcdefghij"]
        listed = [".text." + name for name in names]
        self.assertEqual(self.check(listed, names[:7]).returncode, 0)
        stale = self.check(listed, names[:6])
        self.assertEqual(stale.returncode, 1)
        self.assertIn("6 of 10", stale.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=2)
