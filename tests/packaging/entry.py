# SPDX-License-Identifier: MIT
"""entry.py DESKTOP_ENTRY PROGRAM: the desktop entry speaks English, and Italian where a person chose that; its actions
are there and start the program with options that it has."""

import re
import subprocess
import sys

from installed import desktop_entry

MAIN = "Desktop Entry"
TRANSLATED = ("GenericName", "Comment", "Keywords")
REFUSED = ("Version", "SingleMainWindow")  # by the validators of systems that are still in use


def untranslated(group, keys):
    for key in keys:
        english, italian = group.get(key), group.get(f"{key}[it]")
        if not english or not italian or english == italian:
            yield f"[{group.name}] needs {key} in English and {key}[it] in Italian, found {english!r} and {italian!r}."


def options_of(program):
    shown = subprocess.run([program, "--help"], capture_output=True, text=True, encoding="utf-8", check=True).stdout
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", shown))


def complaints(entry, known):
    main = entry[MAIN]
    yield from untranslated(main, TRANSLATED)
    for key in REFUSED:
        if key in main:
            yield f"{key} is not understood everywhere."
    named = [f"Desktop Action {action}" for action in main.get("Actions", "").split(";") if action]
    if sorted(named) != sorted(set(entry.sections()) - {MAIN}):
        yield f"Actions= names {named}, the groups are {entry.sections()[1:]}."
    if not named:
        yield "there is no action."
    commands = []
    for group in (entry[name] for name in named if name in entry):
        yield from untranslated(group, ["Name"])
        program, *options = group.get("Exec", "").split()
        commands.append(options)
        if program != main["Exec"] or len(options) != 1 or options[0] not in known:
            yield f"[{group.name}] starts {group.get('Exec')!r} instead of {main['Exec']} with one of its options."
    if len(set(map(tuple, commands))) != len(commands):
        yield f"two actions do the same: {commands}."


sys.exit("\n".join(complaints(desktop_entry(sys.argv[1]), options_of(sys.argv[2]))) or 0)
