# SPDX-License-Identifier: MIT
"""Defects that a tool must find, in two sources and a header that are looked at as one batch.

The lines of tests/lint/planted/TOOL that must be complained of say so: "planted: " and the names of the checks.
"""

import re
from pathlib import Path

from batches import Batch

PLACE = Path("tests/lint/planted")
MARK = re.compile(r"// planted: (?P<checks>[\w.,\- ]+)")


def marks(file):
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), start=1):
        if found := MARK.search(line):
            for check in found["checks"].split(", "):
                yield file, number, check


def missed(runner, sources):
    """What is planted and not found, in lines for people."""
    files = sorted((sources.root / PLACE / runner.tool.name).iterdir())
    batch = Batch(sources.flags(sources.all()[-1]), tuple(file for file in files if file.suffix == ".cpp"))
    found = {(Path(complaint["path"]), int(complaint["line"]), check.removeprefix("-Wclazy-"))
             for complaint in runner.complaints(batch) for check in (complaint["checks"] or "").split(",")}
    planted = {mark for file in files for mark in marks(file)}
    return [f"{file}:{line}: {check}" for file, line, check in sorted(planted - found)]
