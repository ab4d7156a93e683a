# SPDX-License-Identifier: MIT
"""What is due: the badge, the overview's figures and rows, the detail screen over it, a maintenance added there that
takes the item out of the list, and the statistics, by the accessibility bus and the keyboard; the stored state."""

import datetime
import json
import os
import uuid

from gi.repository import Atspi

from program import children, until

NOW = datetime.datetime.now(datetime.timezone.utc).replace(microsecond=0)


def item(number, name, kind, days, active=True):
    # Some hours more than whole days, away from zero: the count does not step while the journey is under way.
    spare = datetime.timedelta(hours=6 if days >= 0 else -6)
    date = (NOW + datetime.timedelta(days=days) + spare).strftime("%Y-%m-%dT%H:%M:%SZ")
    return {"id": str(uuid.UUID(int=number)).upper(), "name": name, "type": kind, "brand": "Cressi", "model": "M",
            "serialNumber": "", "purchaseDate": "2020-01-01T09:00:00Z", "lastServiceDate": "2024-01-01T09:00:00Z",
            "nextServiceDate": date, "notes": "", "isActive": active, "maintenanceHistory": []}


REGISTER = [item(1, "Erogatore blu", "Erogatore", 200), item(2, "GAV rosso", "GAV", 12),
            item(3, "Bombola 12L", "Bombola", -40), item(4, "Muta vecchia", "Muta", -10, active=False),
            item(5, "Computer", "Computer Subacqueo", 31)]


def wait_for_cards(program, **expected):
    """Every card is one object that reads "title: value"."""
    for title, value in expected.items():
        program.find(Atspi.Role.LABEL, f"{title.replace('_', ' ')}: {value}")


def rows(program):
    return [row.get_name() for row in children(program.find(Atspi.Role.LIST, "Manutenzioni Scadute"))]


def button(program, row, name):
    line = program.find(Atspi.Role.LIST_ITEM, row, program.find(Atspi.Role.LIST, "Manutenzioni Scadute"))
    return program.find(Atspi.Role.PUSH_BUTTON, name, line)


def has_focus(node):
    return node.get_state_set().contains(Atspi.StateType.FOCUSED)


def show_tab(program, name):
    program.press(program.find(Atspi.Role.PAGE_TAB, name))


def bar(program, name):
    return program.find(Atspi.Role.PROGRESS_BAR, name).get_value_iface()


def journey(run, data):
    os.mkdir(os.path.join(data, "preferences"))
    path = os.path.join(data, "preferences", "savedEquipment.json")
    with open(path, "w", encoding="utf-8") as file:
        json.dump(REGISTER, file)

    program = run()
    program.select_in_sidebar("Manutenzione scaduta, 2")
    program.find(Atspi.Role.LABEL, "Panoramica Manutenzione")
    wait_for_cards(program, Totale_Articoli=5, Manutenzioni_Scadute=2, In_Regola=2)
    program.find(Atspi.Role.LABEL, "In Scadenza (30gg): 1")
    gav, cylinder = "GAV rosso, Scaduto da 12 giorni", "Bombola 12L, Scaduto da 40 giorni"
    until("both due items", lambda: rows(program) == [gav, cylinder])

    # Through the bus: opened by "Dettagli", left by Escape, the focus is back on the button.
    program.press(button(program, cylinder, "Dettagli"))
    sheet = program.find_anywhere(Atspi.Role.DIALOG, "Dettagli Attrezzatura")
    program.find(Atspi.Role.LABEL, "Bombola 12L", sheet)
    program.find(Atspi.Role.LABEL, "Giorni rimanenti: Scaduto", sheet)
    program.key("Escape")
    until("the focus back on the button", lambda: has_focus(button(program, cylinder, "Dettagli")))

    # By keyboard: up to the other row, its first button, and from the sheet into the maintenance form.
    program.key("Up")
    until("the row above", lambda: has_focus(button(program, gav, "Dettagli")))
    program.key("shift+Tab", "space")
    sheet = program.find_anywhere(Atspi.Role.DIALOG, "Dettagli Attrezzatura")
    until("the sheet's first button", lambda: has_focus(program.find(Atspi.Role.PUSH_BUTTON, "Modifica", sheet)))
    program.key("Tab", "space")
    program.find_anywhere(Atspi.Role.LABEL, "Nuova Manutenzione")
    program.type("Revisione annuale")
    program.key("ctrl+Return")
    program.find(Atspi.Role.LABEL, "Revisione annuale", sheet)
    program.key("Escape")

    # Serviced today, due in a year: it left the list, whose other row has taken the place and the focus.
    until("one due item", lambda: rows(program) == [cylinder])
    until("the focus in its place", lambda: has_focus(button(program, cylinder, "Aggiungi Manutenzione")))
    wait_for_cards(program, Totale_Articoli=5, Manutenzioni_Scadute=1, In_Regola=3)
    sidebar = program.find(Atspi.Role.LIST, "Barra laterale")
    until("the badge", lambda: "Manutenzione scaduta, 1" in [row.get_name() for row in children(sidebar)])

    show_tab(program, "Statistiche")
    wait_for_cards(program, Totale_Attrezzatura=5, Attrezzatura_Attiva=4, Manutenzioni_Scadute=1, In_Regola=3,
                   Tipologie=16)
    program.find(Atspi.Role.LABEL, "In Scadenza (30gg): 0")
    assert (bar(program, "Bombola").get_current_value(), bar(program, "Bombola").get_maximum_value()) == (1, 5)
    assert bar(program, "Muta").get_current_value() == 0

    # The last one is deleted from the overview.
    show_tab(program, "Manutenzione")
    program.press(button(program, cylinder, "Aggiungi Manutenzione"))
    sheet = program.find_anywhere(Atspi.Role.DIALOG, "Dettagli Attrezzatura")
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Elimina", sheet))
    program.find_anywhere(Atspi.Role.LABEL, "Sei sicuro di voler eliminare l'attrezzatura 'Bombola 12L'? "
                                            "Questa azione non può essere annullata.")
    program.key("Tab", "space")
    program.find(Atspi.Role.LABEL, "Tutte le attrezzature sono in regola!")
    wait_for_cards(program, Totale_Articoli=4, Manutenzioni_Scadute=0, In_Regola=3)
    show_tab(program, "Statistiche")
    wait_for_cards(program, Totale_Attrezzatura=4, Attrezzatura_Attiva=3)
    assert bar(program, "Bombola").get_current_value() == 0
    program.close()

    with open(path, encoding="utf-8") as file:
        stored = json.load(file)
    assert [entry["name"] for entry in stored] == ["Erogatore blu", "GAV rosso", "Muta vecchia", "Computer"]
    assert [record["description"] for record in stored[1]["maintenanceHistory"]] == ["Revisione annuale"]
    assert [line for line in program.lines if "Sidebar selection" in line] == [
        "🔄 Sidebar selection changed to: maintenance"]
