# SPDX-License-Identifier: MIT
"""commands.py SOURCE: each command that a script in Python starts comes with a package of scripts/packages, or with one
that such a package needs, so that a fresh machine has it. Leaves out what every Debian has."""

import ast
import shutil
import subprocess
import sys
from pathlib import Path

STARTERS = {"run", "Popen", "call", "check_call", "check_output", "which"}
LISTS = ("build", "tests", "package")


def listed(source):
    lines = [line for name in LISTS for line in (source / "scripts/packages" / name).read_text().splitlines()]
    return {line.split()[0] for line in lines if line and not line.startswith("#")}


def started(file):
    """The names of commands that stand first in what is started there."""
    for node in ast.walk(ast.parse(file.read_text())):
        if not isinstance(node, ast.Call) or not node.args:
            continue
        name = getattr(node.func, "attr", getattr(node.func, "id", None))
        first = node.args[0]
        if isinstance(first, ast.List) and first.elts:
            first = first.elts[0]
        if name in STARTERS and isinstance(first, ast.Constant) and isinstance(first.value, str):
            if "/" not in first.value and not first.value.startswith("-"):
                yield first.value


def status():
    """By name: whether every Debian has the package, and the names of those that it needs."""
    fields = "${Package}\t${Essential}\t${Priority}\t${Pre-Depends}, ${Depends}\t${Provides}\n"
    answer = subprocess.run(["dpkg-query", "--show", f"--showformat={fields}"], capture_output=True, text=True,
                            check=True)
    packages, providers = {}, {}
    for line in answer.stdout.splitlines():
        name, essential, priority, needs, provides = line.split("\t")
        choices = [choice.split() for one in needs.split(",") for choice in one.split("|")]
        names = [words[0].split(":")[0] for words in choices if words]
        packages[name] = (essential == "yes" or priority == "required", names)
        for one in filter(None, (provided.strip() for provided in provides.split(","))):
            providers.setdefault(one.split()[0], set()).add(name)
    return packages, providers


def closure(names, packages, providers):
    whole, waiting = set(), list(names)
    while waiting:
        name = waiting.pop()
        if name in whole:
            continue
        whole.add(name)
        waiting += packages.get(name, (False, []))[1]
        waiting += providers.get(name, ())
    return whole


def owner(command):
    path = shutil.which(command)
    if path is None:
        return None
    real = str(Path(path).resolve())
    for file in (path, real, real.removeprefix("/usr"), path.removeprefix("/usr")):
        answer = subprocess.run(["dpkg-query", "--search", file], capture_output=True, text=True, check=False)
        if answer.returncode == 0:
            return answer.stdout.split(":")[0].split(",")[0]
    return ""


def main():
    source = Path(sys.argv[1])
    files = [file for folder in ("tests", "scripts") for file in sorted((source / folder).rglob("*.py"))]
    commands = {command: file for file in files for command in started(file)}
    packages, providers = status()
    there = closure(listed(source), packages, providers)
    problems = []
    for command, file in sorted(commands.items()):
        package = owner(command)
        if package == "" or package in there or packages.get(package, (False,))[0]:
            continue
        comes = f"comes with {package}, which no list in scripts/packages names" if package else "is not here"
        problems.append(f"{file.relative_to(source)}: {command} {comes}")
    print(f"{len(commands)} commands looked at: {' '.join(sorted(commands))}")
    # What it looks for is surely started.
    if not {"xdotool", "git"} <= commands.keys():
        problems.append("the commands that are started were not found")
    sys.exit("\n".join(problems) or 0)


if __name__ == "__main__":
    main()
