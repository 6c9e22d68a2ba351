"""How the desktop program answers its command line before any window is there."""

import tempfile
import unittest

from installation import INSTALLED, environment, run

TARVEX = INSTALLED / "bin/tarvex"


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        # A start that gets past the command line fails to open a window, at once and without touching a display.
        self.environment = environment(HOME=self.folder, QT_QPA_PLATFORM="none-there")

    def tarvex(self, *arguments):
        return run(TARVEX, *arguments, cwd=self.folder, env=self.environment)

    def test_help_and_version_alone_are_answered(self):
        for option in ("--help", "-h"):
            done = self.tarvex(option)
            self.assertEqual(done.returncode, 0)
            self.assertTrue(done.stdout.startswith("Usage: tarvex [FILE]\n"))
        self.assertEqual(self.tarvex("--version").returncode, 0)

    def test_with_other_arguments_they_are_part_of_the_path(self):
        for arguments in (("--help", "me"), ("a.b50", "--version"), ("--version", "--version"), ("--verbose",)):
            done = self.tarvex(*arguments)
            self.assertNotIn("Usage:", done.stdout)
            self.assertIn("platform plugin", done.stdout)

    def test_a_file_of_that_name_is_opened(self):
        with open(self.folder + "/--version", "w") as file:
            file.write("BTN S1 a\r\n")
        self.assertIn("platform plugin", self.tarvex("--version").stdout)

    def test_a_help_text_that_cannot_be_printed_is_a_failure(self):
        with open("/dev/full", "w") as full:
            done = run(TARVEX, "--help", cwd=self.folder, env=self.environment, stdout=full)
        self.assertNotEqual(done.returncode, 0)


if __name__ == "__main__":
    unittest.main()
