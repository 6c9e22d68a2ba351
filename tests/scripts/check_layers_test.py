"""Runs scripts/check-layers on small trees:  check_layers_test.py SCRIPT"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = sys.argv.pop()


class CheckLayers(unittest.TestCase):
    """A tree of two folders: the lower one knows nothing of the upper one."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("src/low/a.h", "")
        self.write("src/low/a.cpp", '#include "low/a.h"\n')
        self.write("src/high/b.h", '#include "low/a.h"\n')
        self.write("src/high/b.cpp", '#include "high/b.h"\n')
        self.note("tarvex_low", sources=["src/low/a.cpp"], headers=["src/low/a.h"])
        self.note("tarvex_high", sources=["src/high/b.cpp"], headers=["src/high/b.h"], links=["tarvex_low"])

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def note(self, target, sources=(), headers=(), links=()):
        lines = [f"SOURCES {s}" for s in sources] + [f"HEADERS {h}" for h in headers] + [f"LINKS {l}" for l in links]
        self.write("layers/" + target, "".join(line + "\n" for line in lines))

    def check(self):
        done = subprocess.run([SCRIPT, self.root, self.root / "layers"], capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stderr)
        return done.stdout.splitlines()

    def test_a_tree_in_order_passes(self):
        self.assertEqual(self.check(), [])

    def test_an_upward_include_is_an_error(self):
        self.write("src/low/a.cpp", '#include "low/a.h"\n#include "high/b.h"\n')
        self.assertIn("src/low/a.cpp includes high/b.h, but tarvex_low doesn't link tarvex_high", self.check())

    def test_an_include_that_only_a_link_of_a_link_covers_is_an_error(self):
        self.write("src/top/c.cpp", '#include "high/b.h"\n#include "low/a.h"\n')
        self.note("tarvex_top", sources=["src/top/c.cpp"], links=["tarvex_high"])
        self.assertEqual(self.check(), ["src/top/c.cpp includes low/a.h, but tarvex_top doesn't link tarvex_low"])

    def test_a_link_that_nothing_includes_is_an_error(self):
        self.write("src/high/b.h", "")
        self.assertEqual(self.check(), ["tarvex_high links tarvex_low, but includes nothing of it"])

    def test_a_link_to_a_library_of_others_needs_no_include(self):
        self.note("tarvex_low", sources=["src/low/a.cpp"], headers=["src/low/a.h"], links=["Qt6::Widgets"])
        self.assertEqual(self.check(), [])

    def test_what_a_helper_header_of_the_tests_includes_counts(self):
        self.write("tests/high/helper.h", '#include "high/b.h"\n')
        self.write("tests/high/b_test.cpp", '#include "helper.h"\n')
        self.note("b_test", sources=["tests/high/b_test.cpp"], links=["tarvex_high"])
        self.assertEqual(self.check(), [])
        self.note("b_test", sources=["tests/high/b_test.cpp"])
        self.assertEqual(self.check(), ["tests/high/helper.h includes high/b.h, but b_test doesn't link tarvex_high"])

    def test_a_source_that_no_target_builds_is_an_error(self):
        self.write("src/low/forgotten.cpp", "")
        self.assertEqual(self.check(), ["src/low/forgotten.cpp belongs to no target"])

    def test_units_that_include_each_other_through_their_sources_are_a_circle(self):
        self.write("src/low/d.h", "")
        self.write("src/low/d.cpp", '#include "low/d.h"\n#include "low/a.h"\n')
        self.write("src/low/a.cpp", '#include "low/a.h"\n#include "low/d.h"\n')
        self.note("tarvex_low", sources=["src/low/a.cpp", "src/low/d.cpp"], headers=["src/low/a.h", "src/low/d.h"])
        self.assertEqual(self.check(), ["units include each other in a circle: low/a, low/d"])

    def test_targets_that_link_each_other_are_a_circle(self):
        self.write("src/low/a.cpp", '#include "low/a.h"\n#include "high/b.h"\n')
        self.note("tarvex_low", sources=["src/low/a.cpp"], headers=["src/low/a.h"], links=["tarvex_high"])
        self.assertIn("targets link each other in a circle: tarvex_high, tarvex_low", self.check())


if __name__ == "__main__":
    unittest.main()
