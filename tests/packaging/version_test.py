"""One number stands everywhere: in VERSION, the programs, the change log and the store entry."""

import re
import unittest
import xml.etree.ElementTree as xml

from installation import SHARE, SOURCES, program

VERSION = (SOURCES / "VERSION").read_text().strip()
HEADING = re.compile(r"^## \[(.+)\](?: - (\d{4}-\d\d-\d\d))?$", re.MULTILINE)
PARTS = {"Added", "Changed", "Deprecated", "Removed", "Fixed", "Security"}


class Version(unittest.TestCase):
    log = (SOURCES / "CHANGELOG.md").read_text()

    def releases(self):
        return [(number, date) for number, date in HEADING.findall(self.log) if number != "Unreleased"]

    def test_the_programs_print_it(self):
        self.assertEqual(program("tarvex", "--version"), f"Tarvex {VERSION}\n")
        self.assertEqual(program("tarvex-open", "--version"), f"tarvex-open {VERSION}\n")
        self.assertEqual(program("tarvexctl", "--version"), f"tarvexctl {VERSION}\n")

    def test_it_is_the_newest_of_the_change_log(self):
        self.assertEqual(self.releases()[0][0], VERSION)

    def test_the_change_log_has_dated_releases_newest_first(self):
        numbers = [tuple(map(int, number.split("."))) for number, _ in self.releases()]
        dates = [date for _, date in self.releases()]
        self.assertTrue(all(dates))
        self.assertEqual(numbers, sorted(numbers, reverse=True))
        self.assertEqual(dates, sorted(dates, reverse=True))

    def test_the_change_log_groups_its_entries_by_kind(self):
        self.assertTrue(self.log.startswith("# Changelog\n"))
        parts = re.findall(r"^### (.*)$", self.log, re.MULTILINE)
        self.assertTrue(parts)
        self.assertLessEqual(set(parts), PARTS)

    def test_the_store_entry_has_it_with_its_date(self):
        entry = xml.parse(SHARE / "metainfo/org.tarvex.Tarvex.metainfo.xml")
        release = entry.find("releases/release")
        self.assertEqual((release.get("version"), release.get("date")), self.releases()[0])
        self.assertTrue(release.findall("description//li"))


if __name__ == "__main__":
    unittest.main()
