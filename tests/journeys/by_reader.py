# SPDX-License-Identifier: MIT
"""From an empty register to a deleted item with nothing but the accessibility bus: no key and no pointer."""

import json
import os

from gi.repository import Atspi

from program import descendants, until


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def enter(program, sheet, label, text):
    field = program.find(Atspi.Role.TEXT, label, sheet)
    assert field.get_editable_text_iface().set_text_contents(text), label


def press_in(program, sheet, name):
    program.press(program.find(Atspi.Role.PUSH_BUTTON, name, sheet))


def choose(program, entry):
    """An entry of the menu bar, found without opening its menu."""
    bar = program.find(Atspi.Role.MENU_BAR)
    program.press(until(entry, lambda: next((node for node in descendants(bar) if node.get_name() == entry), None)))


def wait_until_closed(program, title):
    until(f"the end of {title}", lambda: all(window.get_name() != title for window in program.windows()))


def show(program, tab):
    program.press(program.find(Atspi.Role.PAGE_TAB, tab))


def delete(program):
    choose(program, "Elimina attrezzatura")
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "Elimina"))


def journey(run, data):
    os.mkdir(os.path.join(data, "preferences"))
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "w", encoding="utf-8") as file:
        file.write("[]")
    program = run()

    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Aggiungi la prima attrezzatura"))
    sheet = program.find_anywhere(Atspi.Role.DIALOG, "Nuova Attrezzatura")
    enter(program, sheet, "Nome*", "Pinne corte")
    enter(program, sheet, "Marca*", "Cressi")
    enter(program, sheet, "Ultimo Tagliando", "01/03/2026")
    press_in(program, sheet, "Salva")
    wait_until_closed(program, "Nuova Attrezzatura")
    program.wait_for_rows(["Pinne corte"])
    assert program.table().is_row_selected(0)

    choose(program, "Aggiungi Manutenzione")
    sheet = program.find_anywhere(Atspi.Role.DIALOG, "Nuova Manutenzione")
    enter(program, sheet, "Descrizione*", "Cinghioli nuovi")
    enter(program, sheet, "Costo", "12,50")
    press_in(program, sheet, "Salva")
    wait_until_closed(program, "Nuova Manutenzione")
    program.find(Atspi.Role.LABEL, "€12.50")
    assert stored(data)[0]["maintenanceHistory"][0]["cost"] == 12.5

    choose(program, "Duplica…")
    sheet = program.find_anywhere(Atspi.Role.DIALOG, "Nuova Attrezzatura")
    enter(program, sheet, "Nome*", "Pinne lunghe")
    press_in(program, sheet, "Salva")
    wait_until_closed(program, "Nuova Attrezzatura")
    until("both rows", lambda: sorted(program.row_names()) == ["Pinne corte", "Pinne lunghe"])

    # Pages, the switch of the scheme, and back.
    show(program, "Manutenzione")
    program.find(Atspi.Role.LABEL, "Panoramica Manutenzione")
    program.select_in_sidebar("Impostazioni")
    program.press(program.find(Atspi.Role.CHECK_BOX, "Modalità Scura"))
    with open(os.path.join(data, "preferences", "darkMode.json"), encoding="utf-8") as file:
        assert json.load(file) is True
    choose(program, "Attrezzatura")
    search = program.find(Atspi.Role.TEXT, "Cerca attrezzatura...")
    assert search.get_editable_text_iface().set_text_contents("lunghe")
    program.wait_for_rows(["Pinne lunghe"])
    assert program.table().add_row_selection(0)
    choose(program, "Disattiva")
    program.find(Atspi.Role.LABEL, "Inattivo")
    delete(program)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Cancella filtri"))
    program.wait_for_rows(["Pinne corte"])
    assert program.table().add_row_selection(0)
    delete(program)
    program.find(Atspi.Role.PUSH_BUTTON, "Aggiungi la prima attrezzatura")
    assert stored(data) == []
    choose(program, "Esci")
    program.wait_for_end(0)
