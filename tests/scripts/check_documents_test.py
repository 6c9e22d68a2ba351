"""Runs scripts/check-documents on small trees:  check_documents_test.py SCRIPT"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = sys.argv.pop()


class CheckDocuments(unittest.TestCase):
    """A tree with one unit, its test and a picture, and a document about them."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("src/files/file_load.h", "void showText(Editor& editor);\n")
        self.write("src/files/file_load.cpp", "void showText(Editor& editor) { editor.status(done); }\n")
        self.write("src/files/file_save.cpp", "void saveText() {}\n")
        self.write("resources/icons/open.svg", "")

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def check(self, document):
        self.write("about.md", document)
        done = subprocess.run([SCRIPT, self.root, self.root / "about.md"], capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 1 if done.stdout else 0, done.stderr)
        return [line.removeprefix(f"{self.root}/about.md:") for line in done.stdout.splitlines()]

    def test_files_folders_and_names_that_exist_pass(self):
        self.assertEqual(self.check("`src/files`, `src/files/file_load.cpp`, `file_load.h`, `resources/icons/NAME.svg`,\n"
                                    "`showText`, `Editor::status`, `editor.status(done)`, `show...`\n"), [])

    def test_a_file_that_is_gone_is_an_error_with_its_line(self):
        self.assertEqual(self.check("One.\n\n`src/files/file_open.cpp`, `old.h`\n"),
                         ["3: there is no old.h", "3: there is no src/files/file_open.cpp"])

    def test_a_file_under_another_folder_is_an_error(self):
        self.assertEqual(self.check("`src/text/file_load.cpp`\n"), ["1: there is no src/text/file_load.cpp"])

    def test_the_end_of_a_name_is_no_file(self):
        self.assertEqual(self.check("`load.cpp`\n"), ["1: there is no load.cpp"])

    def test_a_name_that_the_sources_do_not_have_is_an_error(self):
        self.assertEqual(self.check("`showPlain`\n"), ["1: the sources have no showPlain"])

    def test_the_parts_of_a_qualified_name_must_stand_in_one_file(self):
        self.assertEqual(self.check("`Editor::saveText`\n"), ["1: the sources have no Editor::saveText"])

    def test_a_beginning_that_no_name_has_is_an_error(self):
        self.assertEqual(self.check("`wire...`\n"), ["1: the sources have no wire..."])

    def test_a_function_must_be_in_the_file_that_is_named_with_it(self):
        self.assertEqual(self.check("`showText` (`file_load.cpp`), `saveText` (`file_save.cpp`)\n"), [])
        self.assertEqual(self.check("`showText` (`file_save.cpp`)\n"), ["1: file_save.cpp has no showText"])
        self.assertEqual(self.check("`saveText` in `src/files/file_load.cpp`\n"),
                         ["1: src/files/file_load.cpp has no saveText"])

    def test_code_blocks_and_other_quotations_are_left_alone(self):
        self.assertEqual(self.check("    `gone.cpp`\n\n```cpp\n`gone()`\n```\n`Backup\\` `*.b50` `build/bin/x` `a b`\n"), [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
