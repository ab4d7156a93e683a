# SPDX-License-Identifier: MIT
"""An item added by keyboard alone, edited through the accessibility bus, and both as they are stored afterwards."""

import json
import os

from gi.repository import Atspi

from program import local_day, on_local_day, until

SAMPLES = ["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"]


def stored_item(data, name):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return next(record for record in json.load(file) if record["name"] == name)


def form(program, title):
    return program.find_anywhere(Atspi.Role.DIALOG, title)


def wait_until_closed(program, title):
    until(f"the end of {title}", lambda: all(window.get_name() != title for window in program.windows()))


def enter(program, sheet, label, text):
    field = program.find(Atspi.Role.TEXT, label, sheet)
    assert field.get_editable_text_iface().set_text_contents(text), label


def journey(run, data):
    program = run()
    program.wait_for_rows(SAMPLES)

    # A form that is not complete says so and stays open.
    program.key("ctrl+n")
    sheet = form(program, "Nuova Attrezzatura")
    program.find(Atspi.Role.LABEL, "Compila tutti i campi obbligatori", sheet)
    until("the focus in the first field", lambda: program.find(Atspi.Role.TEXT, "Nome*", sheet)
          .get_state_set().contains(Atspi.StateType.FOCUSED))
    program.key("ctrl+Return")
    program.find_anywhere(Atspi.Role.LABEL, "Per favore, compila tutti i campi obbligatori.")
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "OK"))

    # Name, type (one below the regulator), brand, model, serial number, both dates, notes.
    until("the focus back in the first field", lambda: program.find(Atspi.Role.TEXT, "Nome*", sheet)
          .get_state_set().contains(Atspi.StateType.FOCUSED))
    program.type("Faro di riserva")
    program.key("Tab")
    program.type("To")
    program.key("Tab")
    program.type("Scubapro")
    program.key("Tab")
    program.type("Nova 850")
    program.key("Tab", "Tab")
    program.type("29/02/2024")
    program.key("Tab")
    program.type("31/12/2025")
    program.find(Atspi.Role.LABEL, "31 dic 2026", sheet)
    program.key("Tab")
    program.type("con custodia")
    program.key("ctrl+Return")
    program.wait_for_lines(["➕ Aggiunto equipaggiamento: Faro di riserva"])
    wait_until_closed(program, "Nuova Attrezzatura")
    until("the new row", lambda: "Faro di riserva" in program.row_names())

    item = stored_item(data, "Faro di riserva")
    assert item["type"] == "Altro" and item["customTypeName"] == "Torcia", item
    assert (item["brand"], item["model"], item["serialNumber"]) == ("Scubapro", "Nova 850", ""), item
    assert [local_day(item[key]) for key in ("purchaseDate", "lastServiceDate", "nextServiceDate")] == [
        "2024-02-29", "2025-12-31", "2026-12-31"], item
    assert item["notes"] == "con custodia" and item["isActive"] is True and item["maintenanceHistory"] == [], item
    program.close()

    # After a new start: edited from its row.
    program = run()
    program.wait_for_lines(["📦 Caricati 4 equipaggiamenti"])
    program.key("ctrl+f")
    program.type("riserva")
    program.wait_for_rows(["Faro di riserva"])
    # A popup menu is no window to the bus; its second entry is "Modifica attrezzatura".
    program.key("Tab", "Tab", "space", "Menu", "Down", "Down", "Return")
    sheet = form(program, "Modifica Attrezzatura")
    program.find(Atspi.Role.LABEL, "365 giorni", sheet)
    enter(program, sheet, "Nome*", "Faro principale")
    enter(program, sheet, "Numero Seriale", " SN 7 ")
    enter(program, sheet, "Ultimo Tagliando", "01/03/2026")
    program.find(Atspi.Role.LABEL, "1 mar 2027", sheet)
    program.press(program.find(Atspi.Role.CHECK_BOX, "Attivo", sheet))
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Salva", sheet))
    program.wait_for_lines(["✏️ Aggiornato equipaggiamento: Faro principale"])
    wait_until_closed(program, "Modifica Attrezzatura")
    program.close()

    edited = stored_item(data, "Faro principale")
    assert edited == item | {
        "name": "Faro principale",
        "serialNumber": "SN 7",
        "lastServiceDate": on_local_day(item["lastServiceDate"], "2026-03-01"),
        "nextServiceDate": on_local_day(item["lastServiceDate"], "2027-03-01"),
        "isActive": False,
    }, edited
