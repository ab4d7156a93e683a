# SPDX-License-Identifier: MIT
"""The maintenance of one item from its first record to its deletion: records entered out of order, one edited, one
deleted; the item deactivated and at last deleted; the stored state after each start."""

import json
import os
import re

from gi.repository import Atspi

from program import local_day

NAME = "Erogatore Apeks XTX50"


def press(program, name, index=0):
    """A button in any of the program's windows; the index counts buttons of one name from the top."""
    from program import descendants, until

    def look():
        found = [node for window in program.windows() for node in descendants(window)
                 if node.get_role() == Atspi.Role.PUSH_BUTTON and node.get_name() == name
                 and node.get_state_set().contains(Atspi.StateType.SHOWING)]
        return found[index] if len(found) > index else None
    program.press(until(f"button {name!r} number {index}", look))


def record(program, description, date, cost):
    press(program, "Aggiungi Manutenzione")
    program.find_anywhere(Atspi.Role.LABEL, "Nuova Manutenzione")
    program.type(description)
    program.key("Tab", "Tab")  # past the technician
    program.type(cost)
    program.key(*["shift+Tab"] * 4, "ctrl+a")  # back to the date
    program.type(date)
    program.key("ctrl+Return")
    program.find(Atspi.Role.LABEL, description)


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def item(data):
    return next(entry for entry in stored(data) if entry["name"] == NAME)


def dates(data):
    stored_item = item(data)
    return stored_item["lastServiceDate"], stored_item["nextServiceDate"]


def select(program):
    program.key("ctrl+f")
    program.type("apeks")
    program.wait_for_rows([NAME])
    program.key("Tab", "Tab", "space")
    program.find(Atspi.Role.LABEL, "Dettagli Attrezzatura")


def journey(run, data):
    program = run()
    select(program)
    program.find(Atspi.Role.LABEL, "Nessuna manutenzione registrata")
    record(program, "Revisione", "10052026", "1.234,50")
    record(program, "Pulizia degli stadi", "03022025", "12,5")
    record(program, "Prova", "20032026", "")
    program.find(Atspi.Role.LABEL, "€1234.50")
    program.find(Atspi.Role.LABEL, "€12.50")

    history = item(data)["maintenanceHistory"]
    assert [entry["description"] for entry in history] == ["Revisione", "Pulizia degli stadi", "Prova"]
    assert [entry["cost"] for entry in history] == [1234.5, 12.5, 0]
    assert [local_day(entry["date"]) for entry in history] == ["2026-05-10", "2025-02-03", "2026-03-20"]
    assert all(entry["isCompleted"] is True and entry["type"] == "Manutenzione Annuale" for entry in history)
    assert [local_day(entry["nextServiceDate"]) for entry in history] == ["2027-05-10", "2026-02-03", "2027-03-20"]
    # The time of day is the moment of the entry; whole seconds are stored.
    assert all(re.fullmatch(r"T\d\d:\d\d:\d\dZ", entry[key][10:])
               for entry in history for key in ("date", "nextServiceDate")), history
    # Each new record gives the item its dates, an older one too.
    assert dates(data) == (history[2]["date"], history[2]["nextServiceDate"])

    # The newest record stands first; changing it makes its dates count again.
    press(program, "Modifica", 1)  # the first one edits the item
    program.find_anywhere(Atspi.Role.LABEL, "Modifica Manutenzione")
    program.key("ctrl+a")
    program.type("Revisione completa")
    program.key("ctrl+Return")
    program.find(Atspi.Role.LABEL, "Revisione completa")
    assert item(data)["maintenanceHistory"][0]["description"] == "Revisione completa"
    assert dates(data) == (history[0]["date"], history[0]["nextServiceDate"])
    assert item(data)["maintenanceHistory"][0] == history[0] | {"description": "Revisione completa"}

    press(program, "Elimina", 1)
    program.find_anywhere(Atspi.Role.LABEL, "Elimina Manutenzione")
    program.key("Tab", "space")  # from the safe button to the other
    program.find(Atspi.Role.PUSH_BUTTON, "Disattiva")
    press(program, "Disattiva")
    program.find(Atspi.Role.LABEL, "Inattivo")
    kept = item(data)
    assert [entry["description"] for entry in kept["maintenanceHistory"]] == ["Pulizia degli stadi", "Prova"]
    assert kept["maintenanceHistory"] == history[1:]
    assert dates(data) == (history[2]["date"], history[2]["nextServiceDate"])
    assert kept["isActive"] is False
    program.close()

    program = run()
    select(program)
    program.find(Atspi.Role.LABEL, "Inattivo")
    program.find(Atspi.Role.LABEL, "Prova")
    press(program, "Elimina")
    program.find_anywhere(Atspi.Role.LABEL, f"Sei sicuro di voler eliminare l'attrezzatura '{NAME}'? "
                                            "Questa azione non può essere annullata.")
    program.key("Tab", "space")
    program.wait_for_lines([f"🗑️ Eliminato equipaggiamento: {NAME}"])
    program.close()
    assert NAME not in [entry["name"] for entry in stored(data)]
    assert len(stored(data)) == 2
