# SPDX-License-Identifier: MIT
"""Which part of the program may know which."""

import re
from pathlib import Path

from rule import Finding, pattern_rule, rule

# From the bottom up. Rooms of one storey know nothing of one another.
STOREYS = [
    ["Platform"],
    ["Models"],
    ["Services"],
    ["ViewModels"],
    ["Presentation"],
    ["Exchange"],
    ["Theme"],
    ["Components"],
    ["Screen", "Desktop"],
    ["List", "Sidebar", "Forms", "Help", "Types"],
    ["Detail", "Settings", "Restore", "Import", "Print"],
    ["Overview"],
    ["Shell"],
    ["application"],
]
STOREY = {room: number for number, rooms in enumerate(STOREYS) for room in rooms}
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')

# Folders of the headers of QtCore, QtGui and QtNetwork; lint.py sets them from the command line.
QT_HEADERS: dict[str, list[Path]] = {"QtCore": [], "QtGui": [], "QtNetwork": []}


def room_of(source):
    """The room of STOREYS that a file of the program's code lies in, None for another file."""
    parts = source.path.parts
    if parts[0] != "src" or not source.is_cpp:
        return None
    if len(parts) == 2:
        return "application"
    room = parts[2] if parts[1] == "Views" else parts[1]
    return room if room in STOREY else None


def is_layered(source):
    return room_of(source) is not None


def is_below_views(source):
    return is_layered(source) and STOREY[room_of(source)] < STOREY["Theme"]


def includes(source):
    for number, line in enumerate(source.code_lines, start=1):
        if found := INCLUDE.match(line):
            yield number, found[1] or found[2], found[1] is not None


@rule("layers", lambda source: source.is_cpp and source.is_under("src"), """
Includes point downward only: Platform <- Models <- Services <- ViewModels <- Presentation <- Exchange <- Views <- MarevoloApp,
and within Views Theme <- Components <- Screen, Desktop <- List, Sidebar, Forms, Help, Types <- Detail, Settings <- Overview
<- Shell; rooms of one storey know nothing of one another. They name a header by its plain file name, which is therefore
unique. What is below can then be understood, tested and reused without what is above. Fix: move the shared part down,
emit a signal, or let the lower room declare a small interface (as Platform/FilePanel.h) or take a function, which the
upper one hands in.
""")
def check_layers(sources):
    headers = {}
    for source in sources:
        if not is_layered(source):
            yield Finding(source.path, 1, "lies in no room of the program.")
        if source.suffix != ".h":
            continue
        first = headers.setdefault(source.path.name, source)
        if first is not source:
            yield Finding(source.path, 1, f"has the file name of {first.path}; includes could not tell them apart.")
    for source in filter(is_layered, sources):
        here = room_of(source)
        for number, name, is_quoted in includes(source):
            if is_quoted and "/" in name:
                yield Finding(source.path, number, f'includes "{name}" by a path; write the plain file name.')
            target = headers.get(Path(name).name) if is_quoted else None
            there = room_of(target) if target else None
            if there is None or there == here or STOREY[there] < STOREY[here]:
                continue
            place = "above" if STOREY[there] > STOREY[here] else "beside"
            yield Finding(source.path, number, f'includes "{name}" of {there}, which stands {place} {here}.')


def module_of(header):
    """The Qt module that provides a header, "other" for one that is not in QT_HEADERS, None if not Qt's."""
    module, _, name = header.rpartition("/")
    if module.startswith("Qt"):
        return module if module in QT_HEADERS else "other"
    if name.startswith("QCoro"):
        return "QtNetwork" if name.startswith("QCoroNetwork") else "QtCore"
    if module or not re.match(r"Q[A-Z]\w*$|Qt\w*$|q\w+\.h$", name):
        return None
    return next((qt for qt, folders in QT_HEADERS.items() if any((folder / name).exists() for folder in folders)), "other")


@rule("qt-modules", is_below_views, """
Below Views only Qt Core is used, Qt Network in Platform/*HttpClient* alone, and Qt Gui in Exchange, which sets pages:
records, services and state objects run without a screen, in tests and tools. Fix: name colours and symbols (Models/NamedColor.h) and turn them into a QColor or
a picture in Views/Theme; reach the network through Platform/HttpClient.h.
""")
def check_qt_modules(sources):
    for source in sources:
        is_http_client = source.path.parent == Path("src/Platform") and "HttpClient" in source.path.name
        for number, name, _ in includes(source):
            module = module_of(name)
            if module == "other":
                yield Finding(source.path, number, f"includes <{name}>, which is no header of Qt Core.")
            elif module == "QtNetwork" and not is_http_client:
                yield Finding(source.path, number, f"includes <{name}> of Qt Network outside Platform/HttpClient.")
            elif module == "QtGui" and room_of(source) != "Exchange":
                yield Finding(source.path, number, f"includes <{name}>, which is no header of Qt Core.")


pattern_rule("boundaries", is_below_views, """
Below Views nothing opens a dialog or another program and nothing is reached through a global: a state object says what
it needs in its constructor, and a test hands in a substitute. Fix: take an interface of Platform (FilePanel, Opener,
Console, ...) by constructor; MarevoloApp creates the real one.
""", [
    (re.compile(r"\bQ\w*Dialog\b|\bQMessageBox\b|\bQErrorMessage\b"), "is a dialog below Views."),
    (re.compile(r"\bQDesktopServices\b"), "opens another program below Views."),
    (re.compile(r"\binstance\s*\(\s*\)"), "reaches for a global object below Views."),
])

pattern_rule("globals", is_layered, """
State has one owner, created in MarevoloApp: no singleton, no variable that several files share. Fix: pass the object to
the constructor of what uses it.
""", [
    (re.compile(r'\bextern\b(?!\s*(?:"C"|template))'), "declares a variable that several files share."),
    (re.compile(r"\bstatic\b[^;={]*[&*]\s*(?:instance|self)\s*\("), "is a singleton."),
])
