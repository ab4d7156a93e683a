# SPDX-License-Identifier: MIT
"""The table of mutants, mutants.toml: what it says, and whether it still fits the sources.

table.py ROOT prints what does not fit and ends with 1 if anything does not."""

import sys
import tomllib
from dataclasses import dataclass
from pathlib import Path

TABLE = Path("tests/mutants/mutants.toml")


@dataclass(frozen=True)
class Mutant:
    name: str
    file: str  # relative to the root
    text: str
    becomes: str
    test: str  # as ctest names it: ROOM/CLASS

    @property
    def target(self):
        """The program that holds the test."""
        return "tests_" + self.test.partition("/")[0].lower()

    def applied_to(self, source):
        return source.replace(self.text, self.becomes)


def read(root):
    with open(root / TABLE, "rb") as file:
        return [Mutant(name, **entry) for name, entry in tomllib.load(file).items()]


def faults(root, mutants):
    """One line for each mutant that cannot be made, or that no test could notice."""
    classes = {path.stem for path in (root / "tests").rglob("tst_*.cpp")}
    for mutant in mutants:
        source = root / mutant.file
        count = source.read_text(encoding="utf-8").count(mutant.text) if source.is_file() else 0
        if not source.is_file():
            yield f"{mutant.name}: there is no {mutant.file}."
        elif count != 1:
            yield f"{mutant.name}: its text stands {count} times in {mutant.file}, not once."
        if mutant.text == mutant.becomes:
            yield f"{mutant.name}: it changes nothing."
        if mutant.test.partition("/")[2] not in classes:
            yield f"{mutant.name}: there is no test class {mutant.test}."


def main():
    root = Path(sys.argv[1])
    found = list(faults(root, read(root)))
    if found:
        return "\n".join([*found, "", "The sources have changed. Fix: bring tests/mutants/mutants.toml in step, and see\n"
                          "with scripts/checks/mutants NAME that the test still finds the fault."])
    return 0


if __name__ == "__main__":
    sys.exit(main())
