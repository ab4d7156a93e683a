# SPDX-License-Identifier: MIT
"""The window about the program: opened from the menu, brought forward instead of opened twice, closed by Escape, and
closed with the main window."""

from gi.repository import Atspi

from program import descendants, until

TITLE = "Informazioni su Abissora"


def about_windows(program):
    return [window for window in program.windows() if window.get_name() == TITLE]


def open_about(program):
    program.press(program.find(Atspi.Role.MENU_ITEM, "Aiuto"))
    program.press(program.find_anywhere(Atspi.Role.MENU_ITEM, TITLE))
    return until("the window about the program", lambda: next(iter(about_windows(program)), None))


def journey(run, data):
    program = run()
    window = open_about(program)
    texts = [node.get_name() for node in descendants(window)]
    for text in ("Abissora", "Gestione attrezzatura subacquea e manutenzioni", "Versione", "Data Build",
                 "Sviluppato da", "Copyright"):
        assert text in texts, f"{text!r} is not in {texts}"
    open_about(program)
    assert len(about_windows(program)) == 1
    program.key("Escape")
    until("the window to close", lambda: not about_windows(program))
    open_about(program)
    program.window.get_component_iface().grab_focus()
    program.close()
