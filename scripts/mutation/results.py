"""The list of all changes that were tried, kept from run to run, so that their figures add up."""

import csv
import hashlib
from collections import Counter
from dataclasses import astuple, dataclass, replace
from pathlib import Path

from changes import changes_of

OUTCOMES = ("caught", "survived", "no build")


@dataclass(frozen=True)
class Tried:
    outcome: str
    path: str
    key: str  # of the change in the source as it was then
    line: int
    kind: str
    before: str
    after: str
    by: str  # what noticed the change


def described(sources, change):
    """The line's number, and the line before and after, as a reader finds it."""
    source = (Path(sources) / change.path).read_text(encoding="utf-8")
    begin = source.rfind("\n", 0, change.start) + 1
    behind = source.find("\n", change.end)
    before = " ".join(source[begin:behind].split())
    after = " ".join((source[begin : change.start] + change.text + source[change.end : behind]).split())
    return source.count("\n", 0, change.start) + 1, before, after


def key_of(sources, change):
    source = (Path(sources) / change.path).read_bytes()
    digest = hashlib.sha256(source).hexdigest()[:16]
    return f"{digest}:{change.start}:{change.end}:{change.text}"


class Results:
    def __init__(self, top, sources):
        self.sources = sources  # the folder of the sources that the changes are made in
        self.file = Path(top) / "build" / "mutations.tsv"
        self.tried = []
        if self.file.exists():
            with self.file.open(newline="", encoding="utf-8") as rows:
                self.tried = [Tried(*row[:3], int(row[3]), *row[4:]) for row in csv.reader(rows, delimiter="\t")]
        self.known = {(entry.path, entry.key) for entry in self.tried}

    def has(self, change):
        return (change.path, key_of(self.sources, change)) in self.known

    def add(self, change, outcome, by):
        line, before, after = described(self.sources, change)
        entry = Tried(outcome, change.path, key_of(self.sources, change), line, change.kind, before, after, by)
        self.tried.append(entry)
        self.known.add((entry.path, entry.key))
        self.file.parent.mkdir(parents=True, exist_ok=True)
        with self.file.open("a", newline="", encoding="utf-8") as rows:
            self.write(rows, [entry])
        return entry

    def survivors(self):
        return [entry for entry in self.tried if entry.outcome == "survived"]

    def find(self, entry):
        """The change of an entry in the source as it is now; None when its line is gone or stands there twice."""
        if not (Path(self.sources) / entry.path).is_file():
            return None
        found = []
        for change in changes_of(entry.path, (Path(self.sources) / entry.path).read_text(encoding="utf-8")):
            if key_of(self.sources, change) == entry.key:
                return change
            if change.kind == entry.kind and described(self.sources, change)[1:] == (entry.before, entry.after):
                found.append(change)
        return found[0] if len(found) == 1 else None

    def replace(self, entry, outcome, by):
        """Another outcome for a change that was tried again."""
        again = replace(entry, outcome=outcome, by=by)
        self.tried[self.tried.index(entry)] = again
        written = self.file.with_suffix(".new")
        with written.open("w", newline="", encoding="utf-8") as rows:
            self.write(rows, self.tried)
        written.replace(self.file)
        return again

    @staticmethod
    def write(rows, entries):
        table = csv.writer(rows, delimiter="\t")
        for entry in entries:
            table.writerow(astuple(entry))

    def print_all(self):
        for entry in self.survivors():
            print(survivor_text(entry))
        by_folder = {}
        for entry in self.tried:
            by_folder.setdefault(str(Path(entry.path).parent), Counter())[entry.outcome] += 1
        for folder in sorted(by_folder):
            print(f"{folder}: {share_text(by_folder[folder])}")
        windows = sum((counts for folder, counts in by_folder.items() if folder.startswith("src/desktop")), Counter())
        everything = sum(by_folder.values(), Counter())
        print(f"windows (src/desktop): {share_text(windows)}")
        print(f"logic (the others): {share_text(everything - windows)}")
        print(f"all: {share_text(everything)}")


def survivor_text(entry):
    return f"SURVIVED {entry.path}:{entry.line} ({entry.kind})\n    - {entry.before}\n    + {entry.after}"


def share_text(counts):
    real = counts["caught"] + counts["survived"]
    rate = 100 * counts["caught"] / real if real else 0
    return f"{counts['caught']} of {real} changes caught ({rate:.1f} %), {counts['no build']} more did not build"
