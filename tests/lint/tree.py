# SPDX-License-Identifier: MIT
"""The files of a source tree, as the rules read them."""

import os
import re
from functools import cached_property
from pathlib import Path

NOT_OURS = {"build", "node_modules"}
CODE = {".cpp", ".h", ".py", ".cmake", ".sh"}
PACKAGING = {".desktop", ".xml", ".1"}

COMMENT_OR_LITERAL = re.compile(
    r'R"(?P<fence>[^()\\\s]{0,16})\([\s\S]*?\)(?P=fence)"'
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])*'"
    r"|(?P<comment>//[^\n]*|/\*[\s\S]*?\*/)"
)


def _blank_comment(match):
    if match["comment"] is None:
        return match[0]
    return re.sub(r"[^\n]", " ", match[0])


class Source:
    """One file; `path` is relative to the root of the tree."""

    def __init__(self, root, path):
        self.absolute = root / path
        self.path = path

    def is_under(self, folder):
        return self.path.is_relative_to(folder)

    @cached_property
    def text(self):
        return self.absolute.read_text(encoding="utf-8")

    @cached_property
    def lines(self):
        return self.text.splitlines()

    @cached_property
    def code_lines(self):
        """The lines with C++ comments blanked; string literals stay."""
        return COMMENT_OR_LITERAL.sub(_blank_comment, self.text).splitlines()

    @property
    def suffix(self):
        """Without the .in of a template."""
        return Path(self.path.stem).suffix if self.path.suffix == ".in" else self.path.suffix

    @cached_property
    def is_script(self):
        return not self.suffix and self.absolute.read_bytes()[:2] == b"#!"

    @cached_property
    def is_cpp(self):
        return self.suffix in (".cpp", ".h")

    @cached_property
    def is_code(self):
        return self.suffix in CODE or self.path.name == "CMakeLists.txt" or self.is_script

    @cached_property
    def is_shell(self):
        return self.suffix == ".sh" or (self.is_script and re.match(r"#!.*\b(ba)?sh\b", self.lines[0]) is not None)


class Tree:
    def __init__(self, root):
        self.root = Path(root)
        self.sources = [Source(self.root, path) for path in sorted(self._paths())]

    def _paths(self):
        for folder, folders, names in os.walk(self.root):
            here = Path(folder).relative_to(self.root)
            folders[:] = [name for name in folders if self._enters(here / name)]
            for name in names:
                if not (self.root / here / name).is_symlink():
                    yield here / name

    @staticmethod
    def _enters(folder):
        if len(folder.parts) == 1:
            return folder.name == ".ci" or not (folder.name in NOT_OURS or folder.name.startswith("."))
        # The fixtures break every rule on purpose.
        return folder.name != "__pycache__" and folder != Path("tests/lint/fixtures")
