# SPDX-License-Identifier: MIT
"""A type of one's own: given to a new item and seen on every screen, then renamed and deleted under the item, which keeps
its name; the stored item."""

import json
import os
import uuid

from gi.repository import Atspi

from program import children, until

OWN = "Boa segnasub"
ITEM = "Boa rossa"


def stored(data, key):
    with open(os.path.join(data, "preferences", key + ".json"), encoding="utf-8") as file:
        return json.load(file)


def stored_item(data):
    return next(record for record in stored(data, "savedEquipment") if record["name"] == ITEM)


def dialog(program, title):
    return program.find_anywhere(Atspi.Role.DIALOG, title)


def wait_until_closed(program, title):
    until(f"the end of {title}", lambda: all(window.get_name() != title for window in program.windows()))


def wait_for_focus_on(program, role, name, within):
    until(f"the focus on {name}", lambda: program.find(role, name, within)
          .get_state_set().contains(Atspi.StateType.FOCUSED))


def sidebar(program):
    return [row.get_name() for row in children(program.find(Atspi.Role.LIST, "Barra laterale"))]


def store_types(data, types):
    with open(os.path.join(data, "preferences", "equipmentTypes.json"), "w", encoding="utf-8") as file:
        json.dump(types, file)


def enter_item(program):
    program.key("ctrl+n")
    form = dialog(program, "Nuova Attrezzatura")
    wait_for_focus_on(program, Atspi.Role.TEXT, "Nome*", form)
    program.type(ITEM)
    program.key("Tab")
    program.type("Boa")
    program.key("Tab")
    program.type("Omer")
    program.key("ctrl+Return")
    program.wait_for_lines(["➕ Aggiunto equipaggiamento: " + ITEM])
    wait_until_closed(program, "Nuova Attrezzatura")
    until("the new row", lambda: ITEM in program.row_names())


def find_item_by_its_type(program):
    # The filter menu's entries: all, then the types by name.
    program.key("ctrl+f", "Tab", "space", "Down", "Down", "Down", "Return")
    program.wait_for_lines(["🖱️ Menu filtro cliccato: " + OWN])
    program.wait_for_rows([ITEM])
    program.find(Atspi.Role.LABEL, "Filtro: " + OWN)
    assert program.table().get_accessible_at(0, 0).get_name() == ITEM + "\n" + OWN
    program.select_in_sidebar("Tutti gli articoli")
    program.select_in_sidebar(OWN)
    program.wait_for_rows([ITEM])
    program.table().add_row_selection(0)
    program.find(Atspi.Role.LABEL, "Dettagli Attrezzatura")
    assert program.all(Atspi.Role.LABEL, OWN), "the detail screen names the type"


def wait_for_bar(program, name, value):
    program.press(program.find(Atspi.Role.PAGE_TAB, "Statistiche"))
    bar = program.find(Atspi.Role.PROGRESS_BAR, name).get_value_iface()
    assert bar.get_current_value() == value, (name, bar.get_current_value())
    program.press(program.find(Atspi.Role.PAGE_TAB, "Attrezzatura"))


def check_the_item(program, data, before):
    """Whatever became of its type, the item keeps the name."""
    until("the item's row", lambda: ITEM in program.row_names())
    row = program.row_names().index(ITEM)
    assert program.table().get_accessible_at(row, 0).get_name() == ITEM + "\n" + OWN
    assert stored_item(data) == before
    program.table().add_row_selection(row)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Modifica"))
    form = dialog(program, "Modifica Attrezzatura")
    program.find(Atspi.Role.COMBO_BOX, OWN, form)
    program.key("Escape")
    wait_until_closed(program, "Modifica Attrezzatura")


def journey(run, data):
    program = run()
    program.wait_for_lines(["📦 Caricati 3 equipaggiamenti"])
    program.close()
    defaults = stored(data, "equipmentTypes")
    own = {"id": str(uuid.UUID(int=7)).upper(), "name": OWN, "icon": "dive.reel", "color": "green",
           "serviceIntervalDays": 395, "isActive": True}
    store_types(data, defaults + [own])

    program = run()
    until("the category", lambda: OWN in sidebar(program))
    enter_item(program)
    item = stored_item(data)
    assert (item["type"], item["customTypeName"]) == ("Altro", OWN), item
    find_item_by_its_type(program)
    program.select_in_sidebar("Tutti gli articoli")
    wait_for_bar(program, OWN, 1)
    program.close()

    for types in (defaults + [own | {"name": "Pallone"}], defaults + [own | {"isActive": False}], defaults):
        store_types(data, types)
        program = run()
        check_the_item(program, data, item)
        assert OWN not in sidebar(program)
        if len(types) > len(defaults) and types[-1]["isActive"]:
            wait_for_bar(program, "Pallone", 0)
        program.close()
        assert stored(data, "equipmentTypes") == types, "nothing rewrites the types"
