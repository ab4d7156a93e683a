# SPDX-License-Identifier: MIT
"""A type of one's own: made in the settings by keyboard, given to a new item, seen on every screen, renamed and deleted
under the item, and the defaults put back; the stored types and the stored item."""

import json
import os

from gi.repository import Atspi

from program import children, until

OWN = "Boa segnasub"
ITEM = "Boa rossa"


def stored(data, key):
    with open(os.path.join(data, "preferences", key + ".json"), encoding="utf-8") as file:
        return json.load(file)


def stored_item(data):
    return next(record for record in stored(data, "savedEquipment") if record["name"] == ITEM)


def type_names(data):
    return [record["name"] for record in stored(data, "equipmentTypes")]


def dialog(program, title):
    return program.find_anywhere(Atspi.Role.DIALOG, title)


def wait_until_closed(program, title):
    until(f"the end of {title}", lambda: all(window.get_name() != title for window in program.windows()))


def wait_for_focus_on(program, role, name, within):
    until(f"the focus on {name}", lambda: program.find(role, name, within)
          .get_state_set().contains(Atspi.StateType.FOCUSED))


def sidebar(program):
    return [row.get_name() for row in children(program.find(Atspi.Role.LIST, "Barra laterale"))]


def open_management(program):
    program.select_in_sidebar("Impostazioni")
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Gestisci Tipologie"))
    return dialog(program, "Gestione Tipologie")


def leave_management(program):
    program.key("Escape")
    wait_until_closed(program, "Gestione Tipologie")
    program.select_in_sidebar("Tutti gli articoli")


def act_on(program, sheet, name, action):
    types = program.find(Atspi.Role.LIST, "Tipologie Attrezzatura", sheet)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, action, program.find(Atspi.Role.LIST_ITEM, name, types)))


def make_type(program, data):
    sheet = open_management(program)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Nuova Tipologia", sheet))
    form = dialog(program, "Nuova Tipologia")
    program.find(Atspi.Role.LABEL, "Inserisci un nome valido", form)
    wait_for_focus_on(program, Atspi.Role.TEXT, "Nome Tipologia*", form)
    program.type(OWN)
    program.key("Tab", "Up", "Tab", "Right", "Right")
    until("the third colour", lambda: program.find(Atspi.Role.RADIO_BUTTON, "Verde", form)
          .get_state_set().contains(Atspi.StateType.CHECKED))
    program.key("Tab")
    program.type("dive.ree")
    program.find(Atspi.Role.RADIO_BUTTON, "Bozzello", form)
    program.key("Tab", "space")
    until("the icon", lambda: program.find(Atspi.Role.RADIO_BUTTON, "Bozzello", form)
          .get_state_set().contains(Atspi.StateType.CHECKED))
    program.key("ctrl+Return")
    wait_until_closed(program, "Nuova Tipologia")
    program.find(Atspi.Role.LABEL, "17 tipologie attive", sheet)
    program.find(Atspi.Role.LABEL, "Intervallo: 395 giorni", sheet)
    leave_management(program)
    made = stored(data, "equipmentTypes")[-1]
    assert list(made) == ["id", "name", "icon", "color", "serviceIntervalDays", "isActive"], made
    assert list(made.values())[1:] == [OWN, "dive.reel", "green", 395, True], made


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


def rename_type(program, name):
    sheet = open_management(program)
    act_on(program, sheet, OWN, "Modifica")
    form = dialog(program, "Modifica Tipologia")
    field = program.find(Atspi.Role.TEXT, "Nome Tipologia*", form)
    assert field.get_editable_text_iface().set_text_contents(name)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Salva", form))
    wait_until_closed(program, "Modifica Tipologia")
    leave_management(program)
    until("the new name", lambda: name in sidebar(program) and OWN not in sidebar(program))


def delete_type(program, name):
    sheet = open_management(program)
    act_on(program, sheet, name, "Elimina")
    program.find_anywhere(Atspi.Role.LABEL, f"Sei sicuro di voler eliminare la tipologia '{name}'?")
    program.key("Tab", "space")
    program.find(Atspi.Role.LABEL, "16 tipologie attive", sheet)
    act_on(program, sheet, "Altro", "Elimina")
    program.find_anywhere(Atspi.Role.LABEL, "Sei sicuro di voler eliminare la tipologia 'Altro'?")
    program.key("Tab", "space")
    program.find(Atspi.Role.LABEL, "15 tipologie attive", sheet)
    leave_management(program)


def check_the_item(program, data, before):
    """Whatever became of its type, the item keeps the name."""
    until("the item's row", lambda: ITEM in program.row_names())
    row = program.row_names().index(ITEM)
    assert program.table().get_accessible_at(row, 0).get_name() == ITEM + "\n" + OWN
    assert stored_item(data) == before
    program.table().add_row_selection(row)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Modifica"))
    form = dialog(program, "Modifica Attrezzatura")
    program.find(Atspi.Role.COMBO_BOX, "Tipo*: " + OWN, form)
    program.key("Escape")
    wait_until_closed(program, "Modifica Attrezzatura")


def journey(run, data):
    program = run()
    make_type(program, data)
    until("the category", lambda: OWN in sidebar(program))
    enter_item(program)
    item = stored_item(data)
    assert (item["type"], item["customTypeName"]) == ("Altro", OWN), item
    find_item_by_its_type(program)
    program.select_in_sidebar("Tutti gli articoli")
    wait_for_bar(program, OWN, 1)

    rename_type(program, "Pallone")
    check_the_item(program, data, item)
    wait_for_bar(program, "Pallone", 0)
    delete_type(program, "Pallone")
    check_the_item(program, data, item)
    assert "Pallone" not in type_names(data) and len(type_names(data)) == 15

    sheet = open_management(program)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Ripristina Default", sheet))
    program.find(Atspi.Role.LABEL, "16 tipologie attive", sheet)
    leave_management(program)
    assert type_names(data)[0] == "Erogatore" and type_names(data)[-1] == "Altro" and len(type_names(data)) == 16
    assert stored(data, "iconSetVersion") == 4
    check_the_item(program, data, item)
    program.close()
