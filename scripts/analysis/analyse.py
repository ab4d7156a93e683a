# SPDX-License-Identifier: MIT
"""analyse.py tidy|clazy --build FOLDER [--changed [BASE]] [--ours]: looks at the sources, prints what it found."""

import argparse
import sys
import time
from functools import partial
from pathlib import Path

from batches import Sources, is_ours
from changes import NoHistory, changed_files
from planted import missed
from run import Runner, ToolFailed
from tools import TOOLS, Missing

ROOT = Path(__file__).resolve().parents[2]
SIZE = 10


def options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("tool", choices=sorted(TOOLS))
    parser.add_argument("--build", type=Path, help="a folder with compile_commands.json, whose generated files are there")
    parser.add_argument("--changed", nargs="?", const="", metavar="BASE",
                        help="only what differs from the commit where this branch left BASE")
    parser.add_argument("--list", action="store_true", help="only name the files")
    parser.add_argument("paths", nargs="*", type=Path, help="only these files")
    return parser.parse_intermixed_args()


def wanted(given):
    """None for everything."""
    if given.paths:
        return [path.resolve() for path in given.paths]
    if given.changed is None:
        return None
    return [file for file in changed_files(ROOT, given.changed) if is_ours(ROOT, file)]


def main():
    given = options()
    files = wanted(given)
    if given.list:
        print(*(files or []), sep="\n", end="\n" if files else "")
        return 0
    if files == []:
        print("No source has changed.")
        return 0

    started = time.monotonic()
    tool = TOOLS[given.tool](ROOT)
    sources = Sources(ROOT, given.build.resolve())
    runner = Runner(tool, given.build.resolve() / "analysis" / tool.name, say=partial(print, flush=True))
    if files is None:
        if lines := missed(runner, sources):
            return "\n".join([f"{tool.name} no longer finds what is planted for it:", *lines])
        files = sources.all()
    runner.run(sources.batches(files, SIZE))
    for batch in runner.parted:
        print("Looked at in two parts, as names clash:", *(file.relative_to(ROOT) for file in batch.files))
    print(f"{tool.name}: {len(files)} files, {runner.looked_at} of them not known to be clean; "
          f"{len(runner.findings)} findings; {time.monotonic() - started:.0f} s.")
    return 1 if runner.findings else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (Missing, NoHistory, ToolFailed) as problem:
        sys.exit(str(problem))
