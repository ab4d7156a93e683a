#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""manuals.py PROGRAM EXIT_STATUS_HEADER ENGLISH ITALIAN: both manuals describe exactly the options that --help
lists and every exit status, and say the same things in the same order."""

import re
import subprocess
import sys

SECTIONS = [("NAME", "NOME"), ("SYNOPSIS", "SINTASSI"), ("DESCRIPTION", "DESCRIZIONE"), ("OPTIONS", "OPZIONI"),
            ("EXIT STATUS", "STATO DI USCITA"), ("ENVIRONMENT", "AMBIENTE"), ("FILES", "FILE"), ("NETWORK", "RETE"),
            ("EXAMPLES", "ESEMPI"), ("SEE ALSO", "VEDERE ANCHE")]
OPTION = re.compile(r"(?<![\w-])--?[a-z][a-z-]*")


class Manual:
    def __init__(self, path):
        self.path = path
        self.sections = {}  # title -> lines
        self.outline = []  # (macro, title)
        with open(path, encoding="utf-8") as file:
            for line in file.read().replace("\\-", "-").splitlines():
                heading = re.match(r'\.(SH|SS) "?([^"]+)"?$', line)
                if heading:
                    self.outline.append(heading.groups())
                if heading and heading[1] == "SH":
                    self.sections[heading[2]] = []
                elif self.sections:
                    list(self.sections.values())[-1].append(line)

    def titles(self):
        return [title for macro, title in self.outline if macro == "SH"]

    def tags(self, title):
        """What the entries of a section are about: the lines after .TP."""
        lines = self.sections[title]
        return [tag for before, tag in zip(lines, lines[1:]) if before == ".TP"]

    def options(self, title):
        return [option for tag in self.tags(title) for option in OPTION.findall(tag)]


def words(tags):
    """Without the macros of their type, and what stands in their language."""
    return [re.sub(r"^\.[BI]R?I? ", "", tag).replace('", "', " ") for tag in tags]


def differences(program, header, english, italian):
    help_text = subprocess.run([program, "--help"], check=True, capture_output=True, text=True,
                               encoding="utf-8").stdout
    listed = {option for line in help_text.splitlines() if (option_line := re.match(r"\s+(-.*?)(\s{2,}|$)", line))
              for option in OPTION.findall(option_line[1])}
    variables = set(re.findall(r"\bABISSORA_\w+", help_text))
    with open(header, encoding="utf-8") as file:
        statuses = set(re.findall(r"constexpr int \w+ = (\d+);", file.read()))

    for manual, (options, status, environment, synopsis) in (
            (english, ("OPTIONS", "EXIT STATUS", "ENVIRONMENT", "SYNOPSIS")),
            (italian, ("OPZIONI", "STATO DI USCITA", "AMBIENTE", "SINTASSI"))):
        described = set(manual.options(options))
        yield from (f"{manual.path} does not describe {each}" for each in sorted(listed - described))
        yield from (f"{manual.path} describes {each}, which --help does not list" for each in sorted(described - listed))
        in_synopsis = set(OPTION.findall("\n".join(manual.sections[synopsis])))
        yield from (f"{manual.path} has no {each} in its synopsis" for each in sorted(listed - in_synopsis)
                    if each.startswith("--"))
        told = set(words(manual.tags(status)))
        yield from (f"{manual.path} tells {each} among the exit statuses of one side only"
                    for each in sorted(told ^ statuses))
        yield from (f"{manual.path} does not tell of {each}" for each in variables
                    if each not in "\n".join(manual.tags(environment)))

    expected = [title for title, _ in SECTIONS], [title for _, title in SECTIONS]
    for manual, titles in zip((english, italian), expected):
        if manual.titles() != titles:
            yield f"{manual.path} has the sections {manual.titles()}, not {titles}"
            return
    if [macro for macro, _ in english.outline] != [macro for macro, _ in italian.outline]:
        yield "the manuals are not divided alike: " + f"{english.outline} and {italian.outline}"
    for here, there in SECTIONS:
        if len(english.tags(here)) != len(italian.tags(there)):
            yield f"{here} and {there} have not as many entries"
    for here, there in (("EXIT STATUS", "STATO DI USCITA"), ("ENVIRONMENT", "AMBIENTE"), ("FILES", "FILE")):
        if words(english.tags(here)) != words(italian.tags(there)):
            yield f"{here} and {there} are not about the same"
    if english.options("OPTIONS") != italian.options("OPZIONI"):
        yield "the options do not come in the same order"


def main(program, header, english, italian):
    return "\n".join(differences(program, header, Manual(english), Manual(italian)))


sys.exit(main(*sys.argv[1:]) or 0)
