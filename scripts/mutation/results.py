"""The list of all changes that were tried, kept from run to run, so that their figures add up."""

import csv
import hashlib
from collections import Counter
from dataclasses import dataclass
from pathlib import Path

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


def described(top, change):
    """The line's number, and the line before and after, as a reader finds it."""
    source = (Path(top) / change.path).read_text(encoding="utf-8")
    begin = source.rfind("\n", 0, change.start) + 1
    behind = source.find("\n", change.end)
    before = " ".join(source[begin:behind].split())
    after = " ".join((source[begin : change.start] + change.text + source[change.end : behind]).split())
    return source.count("\n", 0, change.start) + 1, before, after


def key_of(top, change):
    source = (Path(top) / change.path).read_bytes()
    digest = hashlib.sha256(source).hexdigest()[:16]
    return f"{digest}:{change.start}:{change.end}:{change.text}"


class Results:
    def __init__(self, top):
        self.top = top
        self.file = Path(top) / "build" / "mutations.tsv"
        self.tried = []
        if self.file.exists():
            with self.file.open(newline="", encoding="utf-8") as rows:
                self.tried = [Tried(*row[:3], int(row[3]), *row[4:]) for row in csv.reader(rows, delimiter="\t")]
        self.known = {(entry.path, entry.key) for entry in self.tried}

    def has(self, change):
        return (change.path, key_of(self.top, change)) in self.known

    def add(self, change, outcome, by):
        line, before, after = described(self.top, change)
        entry = Tried(outcome, change.path, key_of(self.top, change), line, change.kind, before, after, by)
        self.tried.append(entry)
        self.known.add((entry.path, entry.key))
        self.file.parent.mkdir(parents=True, exist_ok=True)
        with self.file.open("a", newline="", encoding="utf-8") as rows:
            csv.writer(rows, delimiter="\t").writerow(
                [entry.outcome, entry.path, entry.key, entry.line, entry.kind, entry.before, entry.after, entry.by]
            )
        return entry

    def print_all(self):
        for entry in self.tried:
            if entry.outcome == "survived":
                print(survivor_text(entry))
        by_folder = {}
        for entry in self.tried:
            by_folder.setdefault(str(Path(entry.path).parent), Counter())[entry.outcome] += 1
        for folder in sorted(by_folder):
            print(f"{folder}: {share_text(by_folder[folder])}")
        print(f"all: {share_text(sum(by_folder.values(), Counter()))}")


def survivor_text(entry):
    return f"SURVIVED {entry.path}:{entry.line} ({entry.kind})\n    - {entry.before}\n    + {entry.after}"


def share_text(counts):
    real = counts["caught"] + counts["survived"]
    rate = 100 * counts["caught"] / real if real else 0
    return f"{counts['caught']} of {real} changes caught ({rate:.1f} %), {counts['no build']} more did not build"
