"""Tries whether the tests notice small mistakes: mutants.py BUILD-FOLDER [--count N] [--seed N] [PATH...]

One change at a time is made in a copy of the project, built, and held against the test programs that link the file. A run
that is cut off goes on where it stopped; what nothing noticed is tried again by the next run.
"""
import argparse
import sys
import time
from pathlib import Path

import programs
from changes import changes_of
from results import Results, read_equivalent
from trial import Broken, Trial

ROOT = Path(__file__).resolve().parents[2]
# More than half of the changes for the library, which is what users link.
SHARES = {"src": 0.45, "geometry": 0.1, "test_dtkhd": 0.1, "platform": 0.35}
WANTED = 0.97
NO_CHANGE = ("compiler", "same code")


def ranked_changes(root, folder, seed, paths):
    """All changes of a folder's files in an order of chance."""
    changes = []
    for file in sorted((root / folder).rglob("*")):
        path = str(file.relative_to(root))
        if file.suffix in (".c", ".cpp", ".h") and (not paths or path.startswith(tuple(paths))):
            changes += changes_of(path, file.read_text())
    return sorted(changes, key=lambda change: change.rank(seed))


def interleave(queues, shares):
    """The folders' changes by turns, so that a run that is cut off has tried some of each."""
    taken = {folder: 0 for folder in queues}
    while any(queues.values()):
        folder = min((name for name in queues if queues[name]), key=lambda name: (taken[name] + 1) / shares[name])
        taken[folder] += 1
        # The order is that of the queue; a change that does not count makes room for the next of its folder.
        if (yield queues[folder].pop(0)):
            taken[folder] -= 1


class Progress:
    """A line at the bottom of a terminal; nothing in a log."""

    def __init__(self, count):
        self.count, self.start, self.tried_here, self.is_shown = count, time.monotonic(), 0, sys.stdout.isatty()

    def show(self, done, noticed):
        if self.is_shown:
            minutes = (time.monotonic() - self.start) / max(self.tried_here, 1) * (self.count - done) / 60
            left = f", about {minutes:.0f} min left" if self.tried_here else ""
            print(f"\r\033[K{done} of {self.count} changes, {noticed} noticed{left}", end="", flush=True)

    def clear(self):
        if self.is_shown:
            print("\r\033[K", end="")


class Run:
    def __init__(self, place, options):
        self.trial, self.results = Trial(ROOT, place), Results(place / "results.jsonl")
        self.known = read_equivalent(Path(__file__).with_name("equivalent.txt"))
        self.options, self.progress = options, Progress(options.count)
        self.counted, self.without_difference, self.outdated = [], [], set()

    def prepare(self):
        print(f"building and testing a copy in {self.trial.build.parent} ...", flush=True)
        self.trial.update()
        self.trial.configure()
        self.trial.measure({program.name: program for _, wanted in programs.TABLE for program in wanted}.values())

    def attempt(self, change, key):
        start = time.monotonic()
        by = self.trial.hold(change)
        self.results.add(key, change, by, time.monotonic() - start)
        self.progress.tried_here += 1
        return by

    def consider(self, change):
        """Whether the change counts: it is a change, and a test could notice it."""
        if change.words() & self.known:
            self.without_difference.append(change)
            return False
        key = Results.key(change, (self.trial.source / change.path).read_text())
        by = self.results.noticed_by(key) or self.attempt(change, key)
        if by in NO_CHANGE:
            return False
        self.counted.append((change, key))
        self.progress.show(len(self.counted), self.noticed())
        return True

    def noticed(self):
        return sum(self.results.noticed_by(key) != "nothing" for _, key in self.counted)

    def choose(self):
        # From the copy, because the project may be worked on meanwhile.
        queues = {folder: ranked_changes(self.trial.source, folder, self.options.seed, self.options.paths) for folder in SHARES}
        if not self.options.paths:
            self.outdated = self.known.difference(*(change.words() for queue in queues.values() for change in queue))
        order = interleave(queues, SHARES)
        does_not_count = None
        while len(self.counted) < self.options.count:
            try:
                change = order.send(does_not_count)
            except StopIteration:
                break
            does_not_count = not self.consider(change)

    def retry(self, before):
        """What an earlier run could not notice may meet better tests now."""
        for change, key in self.counted:
            if key in before:
                self.attempt(change, key)

    def report(self):
        self.progress.clear()
        left = [(change, key) for change, key in self.counted if self.results.noticed_by(key) == "nothing"]
        for name, before, after, _ in sorted(self.outdated):
            print(f"equivalent.txt: there is no such line of {name} any more\n- {before}\n+ {after}")
        for change, _ in left:
            print(f"{change.path}:{change.line + 1}: nothing notices\n- {change.before.strip()}\n+ {change.after.strip()}")
        count, noticed = len(self.counted), len(self.counted) - len(left)
        print(f"{noticed} of {count} changes are noticed, {100 * noticed / max(count, 1):.1f} %; {len(self.without_difference)} "
              f"more make no difference, see tests/mutation/equivalent.txt")
        return noticed >= WANTED * count


def parse():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("place", type=Path, help="where the copy and the results are kept")
    parser.add_argument("--count", type=int, default=300, help="how many changes")
    parser.add_argument("--seed", type=int, default=1, help="another choice of changes")
    parser.add_argument("paths", nargs="*", help="only files whose path begins so")
    return parser.parse_intermixed_args()


def main():
    options = parse()
    options.place.mkdir(parents=True, exist_ok=True)
    run = Run(options.place.resolve(), options)
    before = {key for key, entry in run.results.entries.items() if entry["by"] == "nothing"}
    try:
        run.prepare()
        run.choose()
        run.retry(before)
    except Broken as broken:
        sys.exit(f"mutants: {broken}")
    except KeyboardInterrupt:
        print("\ncut off: the next run goes on here")
    sys.exit(0 if run.report() else 1)


if __name__ == "__main__":
    main()
