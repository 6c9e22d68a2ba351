"""The desktop knows the program, its pictures and its file types, by the desktop's own tools."""

import configparser
import os
import shutil
import struct
import tempfile
import unittest
from pathlib import Path

from installation import INSTALLED, SHARE, SOURCES, environment, output, run

JOYSTICK, MACRO = "text/x-thrustmaster-joystick", "text/x-thrustmaster-macro"
TYPES = {"b50": JOYSTICK, "f22": JOYSTICK, "adv": JOYSTICK, "m50": MACRO, "m22": MACRO, "mdf": MACRO}
SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
SYSTEM = "/usr/local/share:/usr/share"


class Desktop(unittest.TestCase):
    """A data folder with our files beside the system's own, with its caches renewed as a package manager does it."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.data = Path(folder.name) / "share"
        shutil.copytree(SHARE, cls.data)
        shutil.copytree("/usr/share/mime/packages", cls.data / "mime/packages", dirs_exist_ok=True)
        cls.complaints = output("update-mime-database", cls.data / "mime")
        output("update-desktop-database", cls.data / "applications")
        cls.environment = environment(HOME=folder.name, XDG_DATA_DIRS=f"{cls.data}:{SYSTEM}",
                                      XDG_DATA_HOME=f"{folder.name}/none", LC_ALL="C.UTF-8",
                                      PATH=f"{INSTALLED}/bin:{os.environ['PATH']}")

    def type_of(self, file):
        info = output("gio", "info", "-a", "standard::content-type,standard::icon", file, env=self.environment)
        return info.split("standard::content-type: ")[1].split("\n")[0], info

    def test_the_desktop_file_is_valid(self):
        self.assertEqual(output("desktop-file-validate", SHARE / "applications/tarvex.desktop"), "")

    def test_the_desktop_file_starts_a_program_that_is_installed(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(SHARE / "applications/tarvex.desktop")
        self.assertEqual(entry["Desktop Entry"]["Exec"], "tarvex-open %f")
        for name in ("tarvex-open", "tarvex"):
            self.assertTrue((INSTALLED / "bin" / name).is_file())
        self.assertEqual(entry["Desktop Entry"]["Icon"], "tarvex")
        for action in entry["Desktop Entry"]["Actions"].strip(";").split(";"):
            self.assertIn(f"Desktop Action {action}", entry)

    def test_the_store_entry_is_valid(self):
        done = run("appstreamcli", "validate", "--no-net", SHARE / "metainfo/org.tarvex.Tarvex.metainfo.xml")
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertIn("Validation was successful", done.stdout)

    def test_the_store_entry_with_pictures_is_valid_and_they_exist(self):
        entry = self.configured("TARVEX_WEB_ADDRESS=https://tarvex.invalid") / "org.tarvex.Tarvex.metainfo.xml"
        done = run("appstreamcli", "validate", "--no-net", entry)
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertIn("Validation was successful", done.stdout)
        pictures = entry.read_text().split("<image>https://tarvex.invalid/")[1:]
        self.assertEqual(len(pictures), 3)
        for picture in pictures:
            self.assertTrue((SOURCES / picture.split("</image>")[0]).is_file(), picture)

    def test_without_tarvexctl_nothing_speaks_of_it(self):
        packaging = self.configured("TARVEX_CLI=OFF")
        for name in ("tarvex.desktop", "org.tarvex.Tarvex.metainfo.xml"):
            self.assertNotIn("tarvexctl", (packaging / name).read_text())
        self.assertEqual(output("desktop-file-validate", packaging / "tarvex.desktop"), "")

    def configured(self, setting):
        build = self.data.parent / "build"
        output("cmake", "-S", SOURCES, "-B", build, "-G", "Ninja", "-DTARVEX_TESTS=OFF", "-D" + setting)
        return build / "packaging"

    def test_the_database_takes_the_file_types_without_a_complaint(self):
        self.assertEqual([line for line in self.complaints.splitlines() if "thrustmaster" in line or "tarvex" in line], [])

    def test_each_example_has_its_type(self):
        examples = [file for file in (self.data / "tarvex/examples").iterdir() if file.suffix not in (".md", "")]
        self.assertEqual({file.suffix[1:] for file in examples}, set(TYPES))
        for file in examples:
            found, info = self.type_of(file)
            self.assertEqual(found, TYPES[file.suffix[1:]], file)
            self.assertIn(found.replace("/", "-"), info.split("standard::icon: ")[1])

    def test_names_in_capitals_have_their_types_too(self):
        for ending, wanted in TYPES.items():
            file = self.data / f"MIG.{ending.upper()}"
            file.write_bytes(b"Rem m\xfcde\r\n")
            self.assertEqual(self.type_of(file)[0], wanted, file)

    def test_xdg_mime_has_the_same_types(self):
        for ending, wanted in TYPES.items():
            file = self.data / f"one.{ending}"
            file.write_text("BTN S1 one\r\n")
            found = output("xdg-mime", "query", "filetype", file,
                           env=self.environment | {"XDG_CURRENT_DESKTOP": "GNOME", "DISPLAY": ""})
            self.assertEqual(found.strip(), wanted)

    def test_both_types_are_plain_text_and_opened_with_the_program(self):
        subclasses = (self.data / "mime/subclasses").read_text().splitlines()
        for kind in (JOYSTICK, MACRO):
            self.assertIn(f"{kind} text/plain", subclasses)
            recommended = output("gio", "mime", kind, env=self.environment).split("Recommended applications:")[1]
            self.assertIn("tarvex.desktop", recommended)

    def test_the_icons_are_there_in_each_size(self):
        icons = [("apps", "tarvex"), ("mimetypes", JOYSTICK.replace("/", "-")), ("mimetypes", MACRO.replace("/", "-"))]
        for context, name in icons:
            self.assertTrue((SHARE / f"icons/hicolor/scalable/{context}/{name}.svg").is_file())
            for size in SIZES:
                picture = (SHARE / f"icons/hicolor/{size}x{size}/{context}/{name}.png").read_bytes()
                self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size), name)
                self.assertGreater(len(set(picture)), 50, "an empty picture")


if __name__ == "__main__":
    unittest.main()
