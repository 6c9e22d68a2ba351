"""What the handbook says of keys and codes is what the program knows:  facts_test.py SOURCES TARVEXCTL"""

import json
import re
import subprocess
import sys
import unittest
from pathlib import Path

SOURCES, TARVEXCTL = Path(sys.argv.pop(1)), sys.argv.pop(1)
PAGES = SOURCES / "resources/help"
INFO = SOURCES / "resources/info"

# Keys that the table of scan codes calls otherwise than the language does; a number pad key has "KP" in front there.
NAMES = {"Esc": "ESC", "Tab": "TAB", "Caps Lock": "CAPS", "Space": "SPC", "Enter": "ENT", "Backspace": "BSP",
         "Scroll Lock": "SCRLCK", "Insert": "INS", "Delete": "DEL", "Home": "HOME", "End": "END", "Page up": "PGUP",
         "Page down": "PGDN", "arrow up": "UAROW", "arrow down": "DAROW", "arrow left": "LAROW",
         "arrow right": "RAROW", "left Shift": "LSFT", "right Shift": "RSFT", "left Ctrl": "LCTL",
         "right Ctrl": "RCTL", "left Alt": "LALT", "right Alt": "RALT"}
NUMBER_PAD = {"Num Lock": "NUML", "Enter": "KPENT"}


def tarvexctl(*arguments, text=b""):
    return subprocess.run([TARVEXCTL, *arguments], input=text, capture_output=True, check=False, timeout=60)


def keys(*options):
    """Name to make code, as "E0 70"; the key 7, which has no name, is 7."""
    rows = [line.split("\t") for line in tarvexctl("key", "--all", *options).stdout.decode().splitlines()]
    return {row[2] or row[0]: row[3].replace("#", "") for row in rows}


def table_of_codes():
    """Name to code, as the page has them."""
    found, pad = {}, False
    for line in (PAGES / "scan-code-table.md").read_text(encoding="utf-8").splitlines():
        if not line.startswith("|") or line.startswith("|---"):
            continue
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if "Code" in cells:
            pad = cells[0] == "Number pad"
            continue
        for name, code in zip(cells[::2], cells[1::2]):
            if not name:
                continue
            name = name.lstrip("\\") or "\\"
            if pad:
                name = NUMBER_PAD.get(name, "KP" + name)
            elif name in NAMES:
                name = NAMES[name]
            elif len(name) == 1:
                name = name.lower()
            found[name] = code
    return found


def examples(path):
    """The indented lines of a page, as they could stand in a file."""
    lines = path.read_text(encoding="utf-8").splitlines()
    return "\r\n".join(line[4:] for line in lines if line.startswith("    ")).encode("cp1252", "replace")


def all_pages():
    return [*sorted(PAGES.glob("*.md")), *sorted(INFO.glob("*.txt"))]


class ScanCodes(unittest.TestCase):
    maxDiff = None

    def test_table_has_each_key_with_its_code(self):
        expected = keys()
        expected.pop("not supported")
        self.assertEqual(table_of_codes(), expected)

    def test_raw_examples_have_codes_that_some_key_has(self):
        seen = 0
        for path in all_pages():
            for raw in re.findall(r"RAW ?\((?:#[0-9A-F]{2} ?)+\)", path.read_text(encoding="utf-8")):
                unknown = json.loads(tarvexctl("raw", raw, "--json").stdout)["unknown"]
                self.assertEqual(unknown, [], f"{path.name}: {raw}")
                seen += 1
        self.assertGreater(seen, 20)


class KeyNames(unittest.TestCase):
    def test_every_name_of_the_page_is_that_of_a_key(self):
        known = {*keys(), *keys("--joystick", "f22")}
        page = (PAGES / "key-names.md").read_text(encoding="utf-8").split("\n", 2)[2]
        names = set(re.findall(r"`([A-Z][A-Z0-9.+*/-]+)`", page)) - {"SHF", "AUX"}
        self.assertEqual(names - known, set())
        self.assertGreater(len(names), 40)


class Examples(unittest.TestCase):
    def test_none_holds_the_colouring(self):
        seen = 0
        for path in all_pages():
            text = examples(path)
            if not text:
                continue
            for kind in ("joystick", "macro"):
                held = json.loads(tarvexctl("colour", "-", "--as", kind, "--json", text=text).stdout)["held"]
                self.assertEqual(held, [], f"{path.name} as {kind} file")
            seen += 1
        self.assertGreater(seen, 30)


if __name__ == "__main__":
    unittest.main()
