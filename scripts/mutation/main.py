"""Runs random single changes and reports what no test noticed. See scripts/mutate."""

import argparse
import os
import random
import sys
import tempfile
import threading
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from changes import changes_of
from results import Results, share_text, survivor_text
from trial import Trial
from workshop import Workshop


def parsed():
    parser = argparse.ArgumentParser(prog="scripts/mutate")
    parser.add_argument("--top", required=True, help=argparse.SUPPRESS)
    parser.add_argument("--folder", action="append", default=[])
    parser.add_argument("--except", action="append", default=[], dest="left_out")
    parser.add_argument("--tests", action="append")
    parser.add_argument("--count", type=int, default=50)
    parser.add_argument("--seed", type=int)
    parser.add_argument("--minutes", type=float)
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--slow", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--report", action="store_true")
    return parser.parse_args()


def sources(top, folders):
    found = set()
    for folder in folders:
        place = Path(top) / folder
        found |= {place} if place.is_file() else set(place.rglob("*.cpp"))
    if folders and not found:
        raise SystemExit("No sources in " + ", ".join(folders))
    return {str(path.resolve().relative_to(Path(top).resolve())) for path in found}


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


def new_changes(results, paths, chance):
    """Changes that no run has tried, each with no entry of the list."""
    for change in in_random_order(results.sources, paths, chance):
        if not results.has(change):
            yield change, None


def survivors_again(results, paths):
    """The survivors of the list, each with its entry there."""
    for entry in results.survivors():
        if entry.path not in paths:
            continue
        change = results.find(entry)
        if change:
            yield change, entry
        else:
            print(f"GONE {survivor_text(entry)}", flush=True)


class Run:
    """Tries changes, several at a time if wanted, until enough of them were real or the time is up."""

    def __init__(self, asked, results, trial):
        self.asked = asked
        self.results = results
        self.trial = trial
        self.counts = Counter()
        self.end = time.monotonic() + 60 * asked.minutes if asked.minutes else None
        self.lock = threading.Lock()
        self.scratch = trial.workshop.build_folder / "scratch"

    def next_of(self, changes):
        with self.lock:
            real = self.counts["caught"] + self.counts["survived"]
            is_over = (not self.asked.again and real >= self.asked.count) or (self.end and time.monotonic() > self.end)
            return None if is_over else next(changes, None)

    def note(self, change, entry, outcome, by, seconds):
        with self.lock:
            self.counts[outcome] += 1
            entry = self.results.replace(entry, outcome, by) if entry else self.results.add(change, outcome, by)
            if outcome == "survived":
                print(survivor_text(entry), flush=True)
            number = sum(self.counts.values())
            line = f"{number} {outcome} {change.path}:{entry.line} ({change.kind}) {by} [{seconds:.0f} s]"
            print(line, file=sys.stderr, flush=True)

    def work(self, changes):
        with tempfile.TemporaryDirectory(dir=self.scratch) as scratch:
            os.chmod(scratch, 0o755)  # tests of file rights have other users look into it
            while found := self.next_of(changes):
                change, entry = found
                begun = time.monotonic()
                original = (self.trial.workshop.source / change.path).read_text(encoding="utf-8")
                outcome, by = self.trial.outcome(change.path, change.applied(original), Path(scratch), self.asked.tests)
                self.note(change, entry, outcome, by, time.monotonic() - begun)

    def all(self, changes):
        with ThreadPoolExecutor(self.asked.jobs) as workers:
            for done in [workers.submit(self.work, changes) for _ in range(self.asked.jobs)]:
                done.result()


def main():
    asked = parsed()
    workshop = Workshop(asked.top)
    results = Results(asked.top, workshop.source)
    if asked.report:
        return results.print_all()
    seed = asked.seed if asked.seed is not None else random.SystemRandom().randrange(1_000_000)
    print(f"Seed {seed}; building in {workshop.build_folder}", file=sys.stderr, flush=True)
    workshop.prepare()
    paths = sorted(sources(workshop.source, asked.folder or ["src"]) - sources(workshop.source, asked.left_out))
    wanted = [f"bin/{name}" for name in asked.tests] if asked.tests else sorted(workshop.folders_of_programs)
    workshop.build(wanted, asked.jobs)
    paths = [path for path in paths if workshop.programs_of(path)]
    workshop.prepare_headers(paths)
    trial = Trial(workshop, asked.slow)
    trial.learn(wanted, workshop.build_folder / "scratch")
    for program in trial.programs.values():
        if program.failing:
            print(f"Not used, because they fail without a change: {program.name} {', '.join(program.failing)}", flush=True)
    run = Run(asked, results, trial)
    run.all(survivors_again(results, set(paths)) if asked.again else new_changes(results, paths, random.Random(seed)))
    print(f"Seed {seed}: {share_text(run.counts)}.")


main()
