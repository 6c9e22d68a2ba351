"""Runs random single changes and reports what no test noticed. See scripts/mutate."""

import argparse
import random
import sys
import time
from pathlib import Path

from changes import changes_of
from workshop import Workshop


def parsed():
    parser = argparse.ArgumentParser(prog="scripts/mutate")
    parser.add_argument("--top", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--folder", action="append")
    parser.add_argument("--tests", action="append")
    parser.add_argument("--count", type=int, default=50)
    parser.add_argument("--seed", type=int)
    parser.add_argument("--minutes", type=float)
    parser.add_argument("--jobs", type=int, default=1)
    return parser.parse_args()


def sources(top, folders):
    found = set()
    for folder in folders:
        place = Path(top) / folder
        found |= {place} if place.is_file() else set(place.rglob("*.cpp"))
    if not found:
        raise SystemExit("No sources in " + ", ".join(folders))
    return sorted(str(path.resolve().relative_to(Path(top).resolve())) for path in found)


def in_random_order(top, paths, chance):
    """All changes, each kind as often as the others while it has any left."""
    by_kind = {}
    for path in paths:
        for change in changes_of(path, (Path(top) / path).read_text(encoding="utf-8")):
            by_kind.setdefault(change.kind, []).append(change)
    for changes in by_kind.values():
        chance.shuffle(changes)
    while by_kind:
        kind = chance.choice(sorted(by_kind))
        yield by_kind[kind].pop()
        if not by_kind[kind]:
            del by_kind[kind]


def described(top, change):
    """The place and the line before and after, as a reader finds it."""
    source = (Path(top) / change.path).read_text(encoding="utf-8")
    number = source.count("\n", 0, change.start) + 1
    begin = source.rfind("\n", 0, change.start) + 1
    behind = source.find("\n", change.end)
    before = " ".join(source[begin:behind].split())
    after = " ".join((source[begin : change.start] + change.text + source[change.end : behind]).split())
    return f"{change.path}:{number} ({change.kind})\n    - {before}\n    + {after}"


class Report:
    def __init__(self, top, seed):
        self.top = top
        self.seed = seed
        self.counts = {"caught": 0, "survived": 0, "no build": 0}
        self.survivors = []

    def note(self, change, outcome, by):
        self.counts[outcome] += 1
        if outcome == "survived":
            self.survivors.append(change)
            print("SURVIVED " + described(self.top, change), flush=True)
        line = f"{self.real()} {outcome} {change.path} ({change.kind}) {by}"
        print(line, file=sys.stderr, flush=True)

    def real(self):
        return self.counts["caught"] + self.counts["survived"]

    def close(self):
        rate = 100 * self.counts["caught"] / self.real() if self.real() else 0
        print(f"Seed {self.seed}: {self.counts['caught']} of {self.real()} changes caught ({rate:.1f} %), "
              f"{self.counts['survived']} survived, {self.counts['no build']} more did not build.")


def main():
    asked = parsed()
    seed = asked.seed if asked.seed is not None else random.SystemRandom().randrange(1_000_000)
    end = time.monotonic() + 60 * asked.minutes if asked.minutes else None
    workshop = Workshop(asked.top, asked.jobs, asked.tests)
    print(f"Seed {seed}; building in {workshop.build_folder}", file=sys.stderr, flush=True)
    workshop.prepare()
    paths = [path for path in sources(asked.top, asked.folder or ["src"]) if workshop.objects(path)]
    programs = workshop.all_test_programs(paths)
    if not workshop.build(programs):
        raise SystemExit("The sources do not build without a change.")
    workshop.learn(programs)
    for program, failed in workshop.not_run.items():
        if failed:
            print(f"Not used, because they fail without a change: {program} {', '.join(failed)}", flush=True)
    report = Report(asked.top, seed)
    try:
        for change in in_random_order(asked.top, paths, random.Random(seed)):
            if report.real() >= asked.count or (end and time.monotonic() > end):
                break
            report.note(change, *workshop.try_change(change, workshop.test_programs(change.path)))
    except KeyboardInterrupt:
        print("Interrupted.", file=sys.stderr)
    report.close()


main()
