"""The help in an installation: the handbook, its reader, and the files of the program directory."""

import re
import unittest

from installation import INSTALLED, SHARE, SOURCES, output


class Help(unittest.TestCase):
    handbook = SHARE / "tarvex-help/handbook"
    files = SHARE / "tarvex-help/program"

    def test_the_collection_and_its_pages_for_a_browser_are_there(self):
        self.assertTrue((self.handbook / "tarvex.qch").read_bytes().startswith(b"SQLite format 3\0"))
        sources = {page.stem for page in (SOURCES / "resources/help").glob("*.md")}
        self.assertEqual({page.stem for page in self.handbook.glob("*.html")}, sources)

    def test_what_the_pages_show_and_link_is_installed_with_them(self):
        for page in self.handbook.glob("*.html"):
            for name in re.findall(r'(?:src|href)="([^"#:]+)', page.read_text(encoding="utf-8")):
                self.assertTrue((self.handbook / name).is_file(), f"{page.name}: {name}")

    def test_what_only_the_build_needs_is_not_installed(self):
        left = [file.name for file in self.handbook.rglob("*") if file.suffix in (".qhp", ".qhc", ".md")]
        self.assertEqual(left + [file.name for file in self.handbook.glob("index.txt")], [])

    def test_the_program_directory_of_a_user_gets_no_copy_of_the_handbook(self):
        copied = {entry.name for entry in (SHARE / "tarvex").iterdir()}
        self.assertEqual(copied, {"examples"})

    def test_the_reader_of_the_collection_is_beside_the_program(self):
        readers = list(INSTALLED.glob("lib*/**/tarvex/modules/handbook.so"))
        self.assertEqual(len(readers), 1)
        self.assertIn("openTarvexHelpCollection", output("nm", "-D", "--defined-only", readers[0]))

    def test_the_program_itself_does_not_load_qt_help(self):
        linked = output("objdump", "-p", INSTALLED / "bin/tarvex")
        self.assertNotIn("Qt6Help", linked)
        self.assertNotIn("Qt6Sql", linked)

    def test_the_files_of_the_program_directory_are_there(self):
        for name in ("Tips.txt", "Website.txt", "AboutTarvy.bmp", "tarvexbig.wav", "tarvexsmall.wav"):
            self.assertEqual((self.files / name).read_bytes(), (SOURCES / "resources" / name).read_bytes(), name)
        pages = {page.name for page in (SOURCES / "resources/info").glob("*.rtf")}
        self.assertEqual({page.name for page in (self.files / "info").iterdir()}, pages)
        self.assertEqual(len(pages), 16)


if __name__ == "__main__":
    unittest.main()
