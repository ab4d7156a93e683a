# SPDX-License-Identifier: MIT
"""From an empty register to a deleted item with nothing but keys. The bus is only asked where the focus is and what
stands there."""

import json
import os

from gi.repository import Atspi

from program import descendants, until

STOPS = 80  # of Tab, more than any window has


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def has_focus(node):
    return node.get_state_set().contains(Atspi.StateType.FOCUSED)


def focused(program):
    """The node with the focus, in the window that has the keyboard; of a table the row that is selected. What hands its
    focus on is not meant, nor is the current row of a list that has none."""
    for window in program.windows():
        if not window.get_state_set().contains(Atspi.StateType.ACTIVE):
            continue
        nodes = [node for node in descendants(window)
                 if has_focus(node) and node.get_role() not in (Atspi.Role.LIST_ITEM, Atspi.Role.PANEL)]
        pages = [node for node in descendants(window) if has_focus(node) and node.get_role() == Atspi.Role.PANEL]
        for node in nodes + pages:
            if node.get_role() != Atspi.Role.TABLE:
                return node
            table = node.get_table_iface()
            rows = table.get_selected_rows()
            return table.get_accessible_at(rows[0], 0) if rows else node
    return None


def wait_for_focus_on(program, what):
    until(f"the focus on {what!r}", lambda: (focused(program) or program.window).get_name().startswith(what))


def tab_to(program, what):
    """Walks by Tab until it is there; every stop on the way has a name."""
    seen = []
    for _ in range(STOPS):
        node = until("something with the focus", lambda: focused(program))
        seen.append((node.get_role_name(), node.get_name()))
        if node.get_name().startswith(what):
            return
        assert node.get_name(), f"a stop without a name: {seen}"
        assert node.get_role() not in (Atspi.Role.FILLER, Atspi.Role.UNKNOWN), f"a stop without a role: {seen}"
        program.key("Tab")
        until("another stop", lambda: (focused(program) or node) != node)
    raise AssertionError(f"Tab never came to {what!r}: {seen}")


def wait_until_closed(program, title):
    until(f"the end of {title}", lambda: all(window.get_name() != title for window in program.windows()))
    program.wait_for_focus()


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
