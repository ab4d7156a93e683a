# SPDX-License-Identifier: MIT
"""The window about the program: opened from the menu, closed by Escape, opened again, and closed with all others."""

from gi.repository import Atspi

from program import descendants, until

TITLE = "Informazioni su Abissora"


def about_windows(program):
    return [window for window in program.windows() if window.get_name() == TITLE]


def open_about(program):
    program.key("alt+a")
    program.find_anywhere(Atspi.Role.MENU_ITEM, TITLE)
    program.key("i")
    return until("the window about the program", lambda: next(iter(about_windows(program)), None))


def journey(run, data):
    program = run()
    window = open_about(program)
    for text in ("Abissora", "Gestione attrezzatura subacquea e manutenzioni", "Versione", "Data Build",
                 "Sviluppato da", "Copyright"):
        until(f"the text {text!r}", lambda: text in [node.get_name() for node in descendants(window)])
    program.key("Escape")
    until("the window to close", lambda: not about_windows(program))
    open_about(program)
    program.close()
