"""Runs scripts/check-handbook on copies of the handbook, each with one fault:  check_handbook_test.py SCRIPT RESOURCES"""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RESOURCES = Path(sys.argv.pop())
SCRIPT = sys.argv.pop()


class CheckHandbook(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name) / "resources"
        self.root.mkdir()
        for name in ("help", "info"):
            shutil.copytree(RESOURCES / name, self.root / name)
        for name in ("Tips.txt", "Website.txt"):
            shutil.copyfile(RESOURCES / name, self.root / name)
        self.page = self.root / "help" / "using-help.md"

    def edit(self, file, old, new):
        text = file.read_text(encoding="utf-8")
        self.assertIn(old, text)
        file.write_text(text.replace(old, new, 1), encoding="utf-8")

    def check(self, *options):
        done = subprocess.run([SCRIPT, "--no-spelling", *options, self.root], capture_output=True, text=True, timeout=120)
        self.assertEqual(done.returncode, 1 if done.stdout + done.stderr else 0)
        return done.stdout + done.stderr

    def test_the_handbook_as_it_is_passes(self):
        self.assertEqual(self.check(), "")

    def test_a_dead_link_is_found(self):
        self.page.write_text(self.page.read_text(encoding="utf-8") + "\n[x](nowhere.md) [y](welcome.md#nowhere)\n",
                             encoding="utf-8")
        self.assertEqual(self.check(), "using-help.md: no page nowhere.html\n"
                                       "using-help.md: no section welcome.html#nowhere\n")

    def test_a_missing_picture_is_found(self):
        self.page.write_text(self.page.read_text(encoding="utf-8") + "\n![x](pictures/none.png)\n", encoding="utf-8")
        self.assertEqual(self.check(), "using-help.md: no picture pictures/none.png\n")

    def test_a_page_that_is_in_no_chapter_is_found(self):
        self.edit(self.root / "help" / "contents.txt", "  glossary.md\n", "")
        self.assertIn("glossary.md isn't in contents.txt\n", self.check())

    def test_a_page_that_is_listed_twice_or_is_not_there_is_found(self):
        contents = self.root / "help" / "contents.txt"
        text = contents.read_text(encoding="utf-8")
        contents.write_text(text + "  glossary.md\n", encoding="utf-8")
        self.assertIn("glossary.md stands in contents.txt more than once\n", self.check())
        contents.write_text(text + "  nowhere.md\n", encoding="utf-8")
        self.assertIn("there is no page nowhere.md", self.check())

    def test_a_word_that_two_pages_claim_is_found(self):
        self.edit(self.page, "keywords: ", "keywords: Safein, ")
        self.assertIn("both claim the keyword safein\n", self.check())

    def test_topics_that_no_page_has_or_no_window_asks_for_are_found(self):
        self.edit(self.page, "topics: 6300", "topics: 6301")
        self.assertEqual(self.check(), "no page has the topic 6300, which a window asks for\n"
                                       "no window asks for the topic 6301\n")

    def test_a_page_without_its_first_lines_is_found(self):
        self.edit(self.page, "keywords: ", "words: ")
        self.assertIn("using-help.md:2: the second line is", self.check())

    def test_a_page_that_is_too_long_is_found(self):
        self.page.write_text(self.page.read_text(encoding="utf-8") + "\nmany words" * 700, encoding="utf-8")
        self.assertIn(" words; ", self.check())

    def test_missing_texts_of_the_program_are_found(self):
        (self.root / "info" / "Syntax.rtf").unlink()
        (self.root / "Tips.txt").write_text("One tip.\n")
        self.edit(self.root / "Website.txt", "file:web-author.html", "javascript:x")
        faults = self.check()
        self.assertIn("info/Syntax.rtf is missing\n", faults)
        self.assertIn("Tips.txt has 1 tips", faults)
        self.assertIn("Website.txt: javascript:x leads nowhere\n", faults)

    def test_a_misspelt_word_is_found(self):
        self.page.write_text(self.page.read_text(encoding="utf-8") + "\nThis is mispelled.\n", encoding="utf-8")
        done = subprocess.run([SCRIPT, self.root], capture_output=True, text=True, timeout=120)
        self.assertEqual(done.stdout, "using-help.md: spelling of mispelled\n")


if __name__ == "__main__":
    unittest.main()
