"""How scripts/mutate keeps its list of changes, and which tests it runs in which order."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts" / "mutation"))
from changes import changes_of  # noqa: E402
from results import Results  # noqa: E402
from trial import Program, filter_of, nearness, results_of  # noqa: E402


class ListOfChanges(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.top = Path(folder.name)
        (self.top / "build").mkdir()
        self.write("if (a < 1) b();\n")

    def write(self, source):
        (self.top / "a.cpp").write_text(source, encoding="utf-8")

    def results(self):
        return Results(self.top, self.top)

    def survivor(self):
        change = next(change for change in changes_of("a.cpp", "if (a < 1) b();\n") if change.kind == "comparison")
        return change, self.results().add(change, "survived", "")

    def test_a_change_that_was_tried_is_known_to_later_runs(self):
        change, _ = self.survivor()
        self.assertTrue(self.results().has(change))

    def test_a_survivor_is_found_again_when_its_line_has_moved(self):
        change, entry = self.survivor()
        self.write("// new\nif (a < 1) b();\n")
        found = self.results().find(entry)
        self.assertEqual((found.start, found.text), (change.start + len("// new\n"), change.text))

    def test_a_survivor_whose_line_is_gone_is_not_found(self):
        _, entry = self.survivor()
        self.write("if (a < 2) b();\n")
        self.assertIsNone(self.results().find(entry))

    def test_what_catches_a_survivor_later_replaces_it_in_the_list(self):
        _, entry = self.survivor()
        self.results().replace(entry, "caught", "a_test: A.B")
        self.assertEqual([(tried.outcome, tried.by) for tried in self.results().tried], [("caught", "a_test: A.B")])
        self.assertEqual(self.results().survivors(), [])


class Tests(unittest.TestCase):
    def test_seconds_and_failures_are_read_from_what_a_program_writes(self):
        output = (
            "[ RUN      ] A.B\n[       OK ] A.B (1500 ms)\n"
            "[  FAILED  ] All/C.D/0, where GetParam() = 1 (20 ms)\n"
            "[  FAILED  ] All/C.D/0, where GetParam() = 1\n"
        )
        self.assertEqual(results_of(output), ({"A.B": 1.5, "All/C.D/0": 0.02}, ["All/C.D/0"]))

    def test_slow_tests_wait_and_failing_ones_are_left_out(self):
        program = Program("bin/a_test", "tests/a")
        program.seconds = {"A.Quick": 1, "A.Slow": 60, "A.Broken": 1}
        program.failing = ["A.Broken"]
        self.assertEqual(program.tests(slow=False), ["A.Quick"])
        self.assertEqual(program.tests(slow=True), ["A.Quick", "A.Slow"])

    def test_whole_suites_are_selected_by_their_names(self):
        program = Program("bin/a_test", "tests/a")
        program.seconds = {"A.One": 1, "A.Two": 1, "B.One": 1, "B.Two": 1}
        self.assertEqual(filter_of(["A.One", "A.Two", "B.Two"], program), "A.*:B.Two")

    def test_tests_of_the_same_folder_are_nearest(self):
        near, far = Program("bin/find_test", "tests/documents/find"), Program("bin/text_test", "tests/documents/text")
        path = "src/documents/find/find_bar.cpp"
        self.assertGreater(nearness(path, near), nearness(path, far))


unittest.main()
