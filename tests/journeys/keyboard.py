# SPDX-License-Identifier: MIT
"""Where the keyboard stands and how it comes elsewhere. The bus is only asked what is there."""

from gi.repository import Atspi

from program import descendants, until

STOPS = 80  # of Tab, more than any window has


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
