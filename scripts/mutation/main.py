"""Runs random single changes and reports what no test noticed. See scripts/mutate."""

import argparse
import random
import sys
import time
from collections import Counter
from pathlib import Path

from changes import changes_of
from results import Results, share_text, survivor_text
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
    parser.add_argument("--report", action="store_true")
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


def main():
    asked = parsed()
    results = Results(asked.top)
    if asked.report:
        return results.print_all()
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
    counts = Counter()
    try:
        for change in in_random_order(asked.top, paths, random.Random(seed)):
            real = counts["caught"] + counts["survived"]
            if real >= asked.count or (end and time.monotonic() > end):
                break
            if results.has(change):
                continue
            outcome, by = workshop.try_change(change, workshop.test_programs(change.path))
            counts[outcome] += 1
            entry = results.add(change, outcome, by)
            if outcome == "survived":
                print(survivor_text(entry), flush=True)
            print(f"{sum(counts.values())} {outcome} {change.path}:{entry.line} ({change.kind}) {by}", file=sys.stderr, flush=True)
    except KeyboardInterrupt:
        print("Interrupted.", file=sys.stderr)
    print(f"Seed {seed}: {share_text(counts)}.")


main()
