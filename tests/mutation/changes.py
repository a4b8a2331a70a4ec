"""Small changes that could be mistakes: which ones each line of a C or C++ file offers."""
import hashlib
import re
from pathlib import PurePosixPath
from typing import NamedTuple


class Change(NamedTuple):
    """One place of one file, and what takes the place of what is there."""
    path: str
    line: int       # from 0
    start: int      # columns of the line
    end: int
    text: str
    before: str     # the whole line
    above: str      # the line above it

    @property
    def name(self):
        return PurePosixPath(self.path).name

    @property
    def after(self):
        return self.before[:self.start] + self.text + self.before[self.end:]

    def words(self):
        """Both ways by which it may be known in equivalent.txt, wherever the file and the line have moved to."""
        line = self.name, self.before.strip(), self.after.strip()
        return {(*line, ""), (*line, self.above.strip())}

    def rank(self, seed):
        """A number by which changes are chosen; it stays the same when other lines change and when the file moves."""
        key = f"{seed}\n{self.name}\n{self.before}\n{self.start}\n{self.end}\n{self.text}"
        return hashlib.sha256(key.encode()).hexdigest()


# The style of the project sets binary operators, and nothing else, between blanks.
SWAPS = {
    " < ": [" <= "], " <= ": [" < "], " > ": [" >= "], " >= ": [" > "], " == ": [" != "], " != ": [" == "],
    " + ": [" - "], " - ": [" + "], " * ": [" / "], " / ": [" * "], " % ": [" / "], " << ": [" >> "], " >> ": [" << "],
    " && ": [" || "], " || ": [" && "], " & ": [" | "], " | ": [" & "],
    " += ": [" -= "], " -= ": [" += "], " |= ": [" = "], " &= ": [" = "],
    "++": ["--"], "--": ["++"], "true": ["false"], "false": ["true"], "std::min": ["std::max"], "std::max": ["std::min"],
}
SWAP = re.compile(r" (?:<=|>=|==|!=|<<|>>|&&|\|\||\+=|-=|\|=|&=|[-<>+*/%&|]) |\+\+|--|\b(?:true|false|std::min|std::max)\b")
NEGATION = re.compile(r"!(?=[\w(*])")
NUMBER = re.compile(r"(?<![\w.])(?:0x[0-9a-fA-F]+|[0-9]+)(?=[uUlL]*(?![\w.]))")
CONDITION = re.compile(r"\b(?:if|while) \((?P<condition>[^;=]*(?:[!<>=]=[^;=]*)*)\)(?: \{)?$")
CALL = re.compile(r"^\s+[\w:.\->\[\]*]+\(.*\);$")
ASSIGNMENT = re.compile(r"^\s+[\w.\->\[\]*]+ [-+|&]?= [^{]*;$")
RETURN = re.compile(r"^\s+return\b.*;$")
WORDS_THAT_STAY = re.compile(r"^\s*(?:#|static_assert|using|template|case\b.*:$)")
HIDDEN = re.compile(r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])'", re.S)


def without_text(source):
    """The source with blanks in place of comments, strings and characters."""
    return HIDDEN.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), source)


def replaced_operators(line):
    for found in SWAP.finditer(line):
        for text in SWAPS[found.group()]:
            yield found.start(), found.end(), text
    for found in NEGATION.finditer(line):
        yield found.start(), found.end(), ""


def replaced_numbers(line):
    for found in NUMBER.finditer(line):
        value = int(found.group(), 0)
        yield found.start(), found.end(), str(value + 1)
        if value == 1:
            yield found.start(), found.end(), "0"


def decided_conditions(line):
    found = CONDITION.search(line)
    if found:
        for text in ("true", "false"):
            yield found.start("condition"), found.end("condition"), text


def removed_statements(line, line_before):
    is_conditional = re.search(r"\b(?:if|else\b.*) \(.*\)$", line_before)
    if CALL.match(line) or ASSIGNMENT.match(line) or (RETURN.match(line) and is_conditional):
        start = len(line) - len(line.lstrip())
        yield start, len(line), ";"


def changes_of(path, source):
    """All changes of a file."""
    lines = source.split("\n")
    visible = without_text(source).split("\n")
    for number, line in enumerate(visible):
        line = line.rstrip()
        if WORDS_THAT_STAY.match(line):
            continue
        line_before = visible[number - 1].rstrip() if number else ""
        places = [*replaced_operators(line), *replaced_numbers(line), *decided_conditions(line),
                  *removed_statements(line, line_before)]
        for start, end, text in places:
            yield Change(path, number, start, end, text, lines[number], lines[number - 1] if number else "")
