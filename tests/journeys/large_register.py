# SPDX-License-Identifier: MIT
"""A register of 300 items: rows, filters and sidebar; deleting with confirmation; the stored state afterwards."""

import json
import os
import uuid

from gi.repository import Atspi

KINDS = ["Erogatore", "GAV", "Bombola", "Maschera", "Pinne", "Muta", "Muta Stagna", "Computer Subacqueo", "Altro"]


def item(number):
    return {
        "id": str(uuid.UUID(int=number + 1)).upper(),
        "name": f"Àncora {KINDS[number % 9]} n. {number}",
        "type": KINDS[number % 9],
        "brand": "Cressi",
        "model": f"Più bello {number}",
        "serialNumber": f"S{number}",
        "purchaseDate": "2020-01-01T09:00:00Z",
        "lastServiceDate": "2024-01-01T09:00:00Z",
        "nextServiceDate": f"20{40 + number % 50}-06-{1 + number % 28:02}T09:00:00Z",
        "notes": "Perché no?",
        "isActive": True,
        "maintenanceHistory": [],
        "unknownToThisVersion": {"kept": [1, 2, 3]},
    }


def journey(run, data):
    items = [item(number) for number in range(300)]
    os.mkdir(os.path.join(data, "preferences"))
    path = os.path.join(data, "preferences", "savedEquipment.json")
    with open(path, "w", encoding="utf-8") as file:
        json.dump(items, file, ensure_ascii=False)

    program = run()
    program.wait_for_lines(["📦 Caricati 300 equipaggiamenti"])
    program.find(Atspi.Role.LABEL, "300 articoli")
    program.select_in_sidebar("Muta Stagna")
    suits = sorted((i for i in items if i["type"] == "Muta Stagna"), key=lambda i: i["nextServiceDate"])
    program.wait_for_rows([i["name"] for i in suits])
    assert program.selected_sidebar_row() == "Muta Stagna"

    # Cleared from the chip, the sidebar goes back to everything.
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Cancella filtri"))
    program.find(Atspi.Role.LABEL, "300 articoli")
    assert program.selected_sidebar_row() == "Tutti gli articoli"

    # Case is folded, accents count.
    program.key("ctrl+f")
    program.type("PIU")
    program.find(Atspi.Role.LABEL, "0 articoli")
    program.key("Escape")
    program.type("n. 299")
    program.wait_for_rows([items[299]["name"]])

    # Delete it by keyboard: past the filter button into the table, select the row, the Delete key.
    program.key("Tab", "Tab", "space", "Delete")
    program.find_anywhere(Atspi.Role.LABEL, f"Sei sicuro di voler eliminare l'attrezzatura '{items[299]['name']}'?")
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "Elimina"))
    program.wait_for_lines([f"🗑️ Eliminato equipaggiamento: {items[299]['name']}"])
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Cancella filtri"))
    program.find(Atspi.Role.LABEL, "299 articoli")
    program.close()

    with open(path, encoding="utf-8") as file:
        stored = json.load(file)
    assert [record["id"] for record in stored] == [record["id"] for record in items[:299]]
    assert all(stored[0][key] == value for key, value in items[0].items() if key != "unknownToThisVersion")
