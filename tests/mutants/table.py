"""The table of mutants: changes of the source that each break one rule.

A file of the table holds entries like this one, separated by blank lines:

    process/ProcessHelpers.cpp
    A failed size probe gives no snapshot.
    - if (probeError(table, length) != 0) return list;
    + probeError(table, length);

The text after "-" names the line to change, without the blanks around it. The lines after "+" replace
it; without any, the line is removed. If the line occurs several times, "- 2:" means the second one. An
entry may end with a line "= REASON" if nobody can notice the change; it then needs no test.
"""

import re
from dataclasses import dataclass, field
from typing import List


class BrokenTable(Exception):
    """An entry that cannot be read, or whose line is gone."""


@dataclass
class Mutant:
    file: str
    rule: str
    old: str = ""
    place: int = 1
    new: List[str] = field(default_factory=list)
    equivalent: str = ""

    def applied(self, source):
        """The source with the change made."""
        lines = source.splitlines()
        found = [number for number, line in enumerate(lines) if line.strip() == self.old]
        if not found or len(found) < self.place or (len(found) > 1 and self.place == 0):
            raise BrokenTable(f"{self.file}: {len(found)} lines read: {self.old}")
        number = found[max(self.place, 1) - 1]
        lines[number:number + 1] = self.new
        return "\n".join(lines) + "\n"


def _mutant(text):
    file, rule, *changes = text.splitlines()
    mutant = Mutant(file, rule, place=0)
    for line in changes:
        old = re.fullmatch(r"- (?:(\d+): )?(.*)", line)
        if old:
            mutant.place, mutant.old = int(old[1] or 0), old[2].strip()
        elif line.startswith("+ "):
            mutant.new.append(line[2:])
        elif line.startswith("= "):
            mutant.equivalent = line[2:]
        else:
            raise BrokenTable(f"not understood: {line}")
    if not mutant.old:
        raise BrokenTable(f"no line to change: {file}: {rule}")
    return mutant


def read(path):
    """The mutants in a file of the table."""
    entries = re.split(r"\n\s*\n", path.read_text(encoding="utf-8").strip())
    return [_mutant(entry) for entry in entries]
