# SPDX-License-Identifier: MIT
"""What is known about the tools that look at sources: their programs, options and versions."""

import re
import shutil
import subprocess
from pathlib import Path

# Level 1 contains level 0.
CLAZY_CHECKS = "level1"
AT_START = "-Wclazy-non-pod-global-static"


class Missing(Exception):
    pass


def program(*names):
    for name in names:
        if found := shutil.which(name):
            return found
    raise Missing(f"{names[0]} is needed: apt-get install {names[0]}")


def version_of(path):
    return subprocess.run([path, "--version"], capture_output=True, text=True, check=True).stdout


def compiler_of_version(version):
    """The compiler that reads headers as the tool does, which names its major version."""
    major = re.search(r"version (\d+)", version, re.IGNORECASE)[1]
    return program(f"clang++-{major}", "clang++")


class Tidy:
    """clang-tidy; 22 passes over the toolkit's headers, which older versions do not, and so takes a third of the time."""

    name = "tidy"

    def __init__(self, root):
        path = program("clang-tidy-22", "clang-tidy")
        version = version_of(path)
        self.compiler = compiler_of_version(version)
        settings = root / ".clang-tidy"
        self.command = [path, "--quiet", f"--config-file={settings}", f"--header-filter=^{root}/(src|tests|benchmarks)/"]
        self.identity = "\0".join([version, *self.command, settings.read_text(encoding="utf-8")])

    def counts(self, _path, _checks):
        return True


class Clazy:
    name = "clazy"

    def __init__(self, root):
        self.root = root
        path = program("clazy-standalone")
        version = version_of(path)
        self.compiler = program("clang++-14", "clang++")
        self.command = [path, f"--checks={CLAZY_CHECKS}", f"--header-filter=^{root}/(src|tests|benchmarks)/"]
        self.identity = "\0".join([version, *self.command])

    def counts(self, path, checks):
        """Not the compiler's own warnings: a name may well hide one of another source. What a test or a benchmark makes
        at its start is what it was started for; only the program's libraries must not keep a person waiting."""
        folder = Path(path).relative_to(self.root).parts[:2] if Path(path).is_relative_to(self.root) else ()
        is_started_for_it = folder[:1] in (("tests",), ("benchmarks",)) and folder != ("tests", "lint")
        return checks.startswith("-Wclazy-") and not (is_started_for_it and checks == AT_START)


TOOLS = {tool.name: tool for tool in (Tidy, Clazy)}
