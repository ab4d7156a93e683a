# SPDX-License-Identifier: MIT
"""What a rule is, and the list of all of them."""

from dataclasses import dataclass
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

from tree import Source


class Finding(NamedTuple):
    path: Path
    line: int
    complaint: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.complaint}"


@dataclass(frozen=True)
class Rule:
    name: str
    concerns: Callable[[Source], bool]
    why_and_fix: str
    check: Callable[[list[Source]], Iterator[Finding]]

    def sources(self, tree):
        return [source for source in tree.sources if self.concerns(source)]

    def findings(self, tree):
        return sorted(self.check(self.sources(tree)))


RULES: dict[str, Rule] = {}


def rule(name, concerns, why_and_fix):
    """Makes the decorated function, which yields findings, known under a name."""

    def register(check):
        RULES[name] = Rule(name, concerns, why_and_fix.strip(), check)
        return check

    return register


def pattern_rule(name, concerns, why_and_fix, patterns, comments=False):
    """A rule that refuses lines; `patterns` pairs a compiled expression with a complaint about what it matched."""

    @rule(name, concerns, why_and_fix)
    def check(sources):
        for source in sources:
            lines = source.code_lines if source.is_cpp and not comments else source.lines
            for number, line in enumerate(lines, start=1):
                for pattern, complaint in patterns:
                    if found := pattern.search(line):
                        yield Finding(source.path, number, f"'{found[0].strip()}' {complaint}")
