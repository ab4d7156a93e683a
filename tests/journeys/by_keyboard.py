# SPDX-License-Identifier: MIT
"""From an empty register to a deleted item with nothing but keys. The bus is only asked where the focus is and what
stands there."""

import json
import os

from gi.repository import Atspi

from keyboard import tab_to, wait_for_focus_on, wait_until_closed
from program import until


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def journey(run, data):
    os.mkdir(os.path.join(data, "preferences"))
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "w", encoding="utf-8") as file:
        file.write("[]")
    program = run()

    # The first item: the keyboard stands at its button.
    wait_for_focus_on(program, "Aggiungi la prima attrezzatura")
    program.key("Return")
    wait_for_focus_on(program, "Nome*")
    program.type("Erogatore nuovo")
    tab_to(program, "Marca*")
    program.type("Apeks")
    tab_to(program, "Numero Seriale")
    program.type("A-1")
    tab_to(program, "Salva")
    program.key("Return")
    program.wait_for_lines(["➕ Aggiunto equipaggiamento: Erogatore nuovo"])
    wait_until_closed(program, "Nuova Attrezzatura")
    program.find(Atspi.Role.LABEL, "Dettagli Attrezzatura")

    # A record of it.
    program.key("ctrl+m")
    program.find_anywhere(Atspi.Role.DIALOG, "Nuova Manutenzione")
    tab_to(program, "Descrizione*")
    program.type("Revisione")
    tab_to(program, "Salva")
    program.key("Return")
    wait_until_closed(program, "Nuova Manutenzione")
    until("the record", lambda: stored(data)[0]["maintenanceHistory"])
    tab_to(program, "Elimina")

    # Another piece of the same kind, under another name.
    program.key("ctrl+d")
    wait_for_focus_on(program, "Nome*")
    program.key("ctrl+a")
    program.type("Erogatore di riserva")
    program.key("ctrl+Return")
    program.wait_for_lines(["➕ Aggiunto equipaggiamento: Erogatore di riserva"])
    wait_until_closed(program, "Nuova Attrezzatura")
    assert [record["serialNumber"] for record in stored(data)] == ["A-1", ""]

    # Round the pages and back.
    for key, name in (("ctrl+2", "Panoramica Manutenzione"), ("ctrl+Tab", "Distribuzione per Tipo"),
                      ("ctrl+comma", "Configura la tua esperienza"), ("ctrl+1", "Attrezzatura Subacquea")):
        program.key(key)
        program.find(Atspi.Role.LABEL, name)

    # From the search to its first row, and the item is edited.
    program.key("ctrl+f")
    program.type("riserva")
    program.wait_for_rows(["Erogatore di riserva"])
    program.key("Down")
    wait_for_focus_on(program, "Erogatore di riserva")
    program.key("F2")
    wait_for_focus_on(program, "Nome*")
    program.key("End")
    program.type(" blu")
    program.key("ctrl+Return")
    program.wait_for_lines(["✏️ Aggiornato equipaggiamento: Erogatore di riserva blu"])
    wait_until_closed(program, "Modifica Attrezzatura")

    # Deleted by its key; then the other one by its menu.
    program.key("ctrl+f", "Escape", "Down")
    until("both rows", lambda: len(program.row_names()) == 2)
    program.key("End", "Delete")
    wait_for_focus_on(program, "Annulla")
    program.key("Return")
    until("the end of the question", lambda: len(program.windows()) == 1)
    program.wait_for_focus()
    program.key("Delete")
    wait_for_focus_on(program, "Annulla")
    tab_to(program, "Elimina")
    program.key("Return")
    until("one row", lambda: len(program.row_names()) == 1)
    program.wait_for_focus()
    program.key("alt+r", "Up", "Return")
    wait_for_focus_on(program, "Annulla")
    tab_to(program, "Elimina")
    program.key("Return")
    wait_for_focus_on(program, "Aggiungi la prima attrezzatura")
    assert stored(data) == []
    program.close()
