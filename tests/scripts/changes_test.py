"""Which single changes scripts/mutate finds in a source."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts" / "mutation"))
from changes import changes_of  # noqa: E402


def changed(source, kind=None):
    return {change.applied(source) for change in changes_of("a.cpp", source) if kind in (None, change.kind)}


class Changes(unittest.TestCase):
    def test_a_comparison_becomes_its_neighbours(self):
        self.assertEqual(changed("x = a < b;", "comparison"), {"x = a <= b;", "x = a >= b;"})

    def test_the_brackets_of_a_template_are_no_comparison(self):
        self.assertEqual(changed("std::vector<T> x; template <typename T> T f();", "comparison"), set())

    def test_comments_and_includes_stay(self):
        self.assertEqual(changed('#include "a1.h"\n// 1 < 2\n/* f(1); */\n'), set())

    def test_the_code_of_a_text_stays_and_the_text_changes(self):
        self.assertEqual(changed('const auto x = "1 < 2 ab";'), {'const auto x = "1 < 2 ab~";'})

    def test_a_character_is_no_text_and_hides_a_quote(self):
        self.assertEqual(changed("x = f('\"', \"ab\");", "text"), {"x = f('\"', \"ab~\");"})

    def test_a_number_grows_and_shrinks_but_not_below_nothing(self):
        self.assertEqual(changed("x = 7;", "constant"), {"x = (7 + 1);", "x = (7 - 1);"})
        self.assertEqual(changed("x = 0;", "constant"), {"x = (0 + 1);"})
        self.assertEqual(changed("x = 1'000U;", "constant"), {"x = (1'000U + 1);", "x = (1'000U - 1);"})
        self.assertEqual(changed("x = a1;", "constant"), set())

    def test_a_condition_is_negated_with_its_characters(self):
        self.assertEqual(changed("if (a == 'x') b();", "condition"), {"if (!(a == 'x')) b();"})

    def test_a_condition_that_declares_something_stays(self):
        self.assertEqual(changed("if (const auto x = f()) b();", "condition"), set())

    def test_a_call_is_left_out_whole(self):
        source = "{\n    a.b(1, [] {\n        c();\n    });\n    return 1;\n}\n"
        self.assertEqual(changed(source, "statement"), {
            "{\n    ;\n    return 1;\n}\n",
            "{\n    a.b(1, [] {\n        ;\n    });\n    return 1;\n}\n",
        })

    def test_a_declaration_is_not_left_out(self):
        self.assertEqual(changed("{\n    int x = 1;\n    Foo y(2);\n    const auto z = f();\n}\n", "statement"), set())

    def test_a_jump_is_left_out_but_no_value_that_is_returned(self):
        self.assertEqual(changed("{\n    if (a) return;\n    if (b) return 1;\n}\n", "jump"), {
            "{\n    if (a) ;\n    if (b) return 1;\n}\n",
        })

    def test_a_negation_goes(self):
        self.assertEqual(changed("x = a && !b;", "logic"), {"x = a || !b;", "x = a && b;"})


if __name__ == "__main__":
    unittest.main()
