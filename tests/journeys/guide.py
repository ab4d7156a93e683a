# SPDX-License-Identifier: MIT
"""The guide opened by its shortcut, from its menu and from the settings; searched, closed and opened afresh."""

from gi.repository import Atspi

from program import children, until

INDEX = "Indice della guida"


def indices(program):
    return [node for window in program.windows() for node in program.all(Atspi.Role.LIST, INDEX, window)]


def rows(program):
    return [row for index in indices(program) for row in children(index)]


def titles(program):
    return [row.get_name() for row in rows(program)]


def chosen(program):
    return [row.get_name() for row in rows(program) if row.get_state_set().contains(Atspi.StateType.SELECTED)]


def wait_for_a_fresh_guide(program):
    until("the guide at its first section", lambda: len(titles(program)) >= 12 and chosen(program) == titles(program)[:1])


def wait_until_closed(program):
    until("the end of the guide", lambda: not indices(program))


def journey(run, _data):
    program = run()

    # By its shortcut: searched, nothing found, found, chosen.
    program.key("F1")
    program.find_anywhere(Atspi.Role.FRAME, "Aiuto")
    wait_for_a_fresh_guide(program)
    everything = titles(program)
    program.key("ctrl+f")
    program.type("rebreather")
    program.find_anywhere(Atspi.Role.LABEL, 'Nessun risultato per\n"rebreather"')
    program.find_anywhere(Atspi.Role.LABEL, "Seleziona un argomento")
    program.key("Escape")
    until("all sections, none of them chosen", lambda: titles(program) == everything and not chosen(program))
    program.type("SCONTRINO")
    until("fewer sections", lambda: 0 < len(titles(program)) < len(everything))
    program.key("Tab", "Return")
    until("the first match", lambda: chosen(program) == titles(program)[:1])
    program.key("ctrl+w")
    wait_until_closed(program)

    # From the menu: as if for the first time.
    program.key("alt+a")
    program.find_anywhere(Atspi.Role.MENU_ITEM, "Abissora Help")
    program.key("h")
    wait_for_a_fresh_guide(program)
    assert not program.find_anywhere(Atspi.Role.TEXT, "Cerca nella guida…").get_text_iface().get_character_count()
    program.key("ctrl+w")
    wait_until_closed(program)

    # As a sheet over the settings, which Escape closes.
    program.select_in_sidebar("Impostazioni")
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Apri la Guida"))
    wait_for_a_fresh_guide(program)
    program.key("Escape")
    wait_until_closed(program)
    program.close()
