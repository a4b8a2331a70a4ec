"""What has been tried so far, kept in a file from one run to the next, and which of it makes no difference."""
import hashlib
import json
from pathlib import Path


class Results:
    """One line of JSON for each change that was held against the tests; a later line takes an earlier one's place."""

    def __init__(self, file):
        self.file = file
        lines = file.read_text().splitlines() if file.exists() else []
        self.entries = {entry["key"]: entry for entry in map(json.loads, lines)}

    @staticmethod
    def key(change, source):
        """A file that has changed is tried afresh, one that has moved is not."""
        of_file = hashlib.sha256(source.encode()).hexdigest()[:16]
        return f"{of_file} {change.name}:{change.line + 1}:{change.start + 1}-{change.end} {change.text}"

    def noticed_by(self, key):
        return self.entries[key]["by"] if key in self.entries else None

    def add(self, key, change, by, seconds):
        entry = {"key": key, "before": change.before.strip(), "after": change.after.strip(), "by": by, "seconds": round(seconds, 1)}
        self.entries[key] = entry
        with self.file.open("a") as file:
            file.write(json.dumps(entry) + "\n")


def read_equivalent(file: Path):
    """
    The changes that make no difference: a file's name, its line with "-", the changed one with "+", and the reason. A line
    that says little by itself has the one above it before it, with "@".
    """
    name, above, before, known = "", "", "", set()
    for line in file.read_text().splitlines():
        if line.startswith("@ "):
            above = line[2:].strip()
        elif line.startswith("- "):
            before = line[2:].strip()
        elif line.startswith("+ "):
            known.add((name, before, line[2:].strip(), above))
            above = ""
        elif line and not line.startswith((" ", "#")):
            name = line.strip()
    return known
