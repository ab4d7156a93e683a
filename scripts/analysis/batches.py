# SPDX-License-Identifier: MIT
"""The sources of a build folder in batches: sources of one target that are looked at as one translation unit.

Reading the toolkit's headers takes longer than anything that is done with a source of ours, so ten sources at once cost
hardly more than one.
"""

import json
import re
import shlex
from collections import defaultdict
from dataclasses import dataclass
from pathlib import Path

FOLDERS = ("src", "tests", "benchmarks")
NOT_COMPILED = ("tests/lint", "tests/walls")
SOURCES = {".cpp", ".h"}

# What belongs to one object file, makes errors of warnings, or is known to one compiler only.
DROPPED = {"-Werror", "-Winvalid-pch", "-fpch-preprocess", "-MD", "-c"}
DROPPED_WITH_ARGUMENT = {"-o", "-MT", "-MF", "-Xclang"}


@dataclass(frozen=True)
class Batch:
    flags: tuple[str, ...]
    files: tuple[Path, ...]

    def text(self):
        return "".join(f'#include "{file}"\n' for file in self.files)

    def parts(self, clashing):
        """Two batches: the sources whose paths are given and the others, or halves when that parts nothing."""
        apart = [file for file in self.files if str(file) in clashing]
        if not 0 < len(apart) < len(self.files):
            apart = self.files[len(self.files) // 2:]
        rest = [file for file in self.files if file not in apart]
        return [Batch(self.flags, tuple(rest)), Batch(self.flags, tuple(apart))]


def flags_of(command, source):
    """The options of a compiler's command without those of its output; a precompiled header is left out."""
    words = shlex.split(command)
    # A launcher, if there is one, the compiler and what follows; its options begin with the first dash after them.
    words = iter(words[next(place for place, word in enumerate(words) if word.startswith("-D") or word.startswith("-I")):])
    flags = []
    for word in words:
        if word in DROPPED_WITH_ARGUMENT:
            next(words)
        elif word == "-include":
            if not (header := next(words)).endswith("cmake_pch.hxx"):
                flags += [word, header]
        elif word not in DROPPED and word != source:
            flags.append(word)
    return tuple(flags)


def sources_in(file):
    """What a compiled file is made of: itself, or the sources that the build compiles together by including them there."""
    if file.parent.name != "Unity":
        return [file]
    return [Path(source) for source in re.findall(r'^#include "(.*)"$', file.read_text(encoding="utf-8"), re.MULTILINE)]


def is_ours(root, file):
    """Whether a file is a source of this project, neither generated nor an example of what must not compile."""
    if not file.is_relative_to(root) or file.suffix not in SOURCES:
        return False
    path = file.relative_to(root)
    return path.parts[0] in FOLDERS and not any(path.is_relative_to(folder) for folder in NOT_COMPILED)


class Sources:
    """The sources below `root` with the flags that the compile commands of the folder `build` give them."""

    def __init__(self, root, build):
        self.root = root
        self.flags_by_file = {}
        for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
            for file in sources_in(Path(entry["directory"], entry["file"])):
                if is_ours(root, file):
                    self.flags_by_file.setdefault(file, flags_of(entry["command"], entry["file"]))

    def all(self):
        """Those that this build leaves out are among them."""
        return sorted(file for folder in FOLDERS for file in (self.root / folder).rglob("*.cpp") if is_ours(self.root, file))

    def flags(self, file):
        """A file that is not compiled by itself is read as a source that includes it, or as the nearest one."""
        if file in self.flags_by_file:
            return self.flags_by_file[file]
        include = f'#include "{file.name}"'
        for source in sorted(self.flags_by_file):
            if source.exists() and include in source.read_text(encoding="utf-8"):
                return self.flags_by_file[source]
        for folder in file.parents:
            if neighbours := [source for source in self.flags_by_file if source.is_relative_to(folder)]:
                return self.flags_by_file[min(neighbours)]
        raise LookupError(f"no compile command for {file}")

    def batches(self, files, size):
        groups = defaultdict(list)
        for file in sorted(files):
            # A source that is not compiled may be another system's version of one that is.
            is_alone = file.suffix == ".cpp" and file not in self.flags_by_file
            groups[self.flags(file), file if is_alone else None].append(file)
        for (flags, _), members in groups.items():
            count = -(-len(members) // size)
            length = -(-len(members) // count)
            for start in range(0, len(members), length):
                yield Batch(flags, tuple(members[start:start + length]))
