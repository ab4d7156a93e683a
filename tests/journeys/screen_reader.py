# SPDX-License-Identifier: MIT
"""What a screen reader is told while somebody searches and goes through the list: the focus stays in the search,
what it leaves is counted, the first Down tells its row. In the guide likewise."""

from gi.repository import Atspi, GLib

from program import children, until


class Ears:
    """Hears where the focus goes, and what comes into sight to be read out."""

    def __init__(self, program):
        self.pid = program.process.pid
        self.focused = []
        self.notifications = []
        self.listener = Atspi.EventListener.new(self._hear)
        for event in ("object:state-changed:focused", "object:state-changed:showing"):
            self.listener.register(event)

    def _hear(self, event):
        try:
            source = event.source
            if not event.detail1 or source.get_process_id() != self.pid:
                return
            if event.type.endswith("focused"):
                self.focused.append((source.get_role(), source.get_name()))
            elif source.get_role() == Atspi.Role.NOTIFICATION:
                self.notifications.append(source.get_name())
        except GLib.Error:
            pass  # the object is gone

    def take_focused(self):
        heard, self.focused = self.focused, []
        return heard

    @staticmethod
    def listen():
        while GLib.MainContext.default().iteration(False):
            pass

    def wait(self, what, condition):
        def look():
            self.listen()
            return condition()
        until(what, look)


def journey(run, data):
    program = run()
    ears = Ears(program)
    program.key("ctrl+f")
    search = program.find(Atspi.Role.TEXT, "Cerca attrezzatura...")
    ears.wait("the focus in the search",
              lambda: any(role == Atspi.Role.TEXT for role, _ in ears.focused))
    ears.take_focused()

    program.type("hydros")
    program.wait_for_rows(["GAV Scubapro Hydros"])
    ears.listen()
    assert search.get_state_set().contains(Atspi.StateType.FOCUSED)
    told = ears.take_focused()
    assert not told, f"the search lost the focus: {told}"
    ears.wait("the count", lambda: "1 articoli" in ears.notifications)

    program.key("Down")
    ears.wait("the first row", lambda: ears.focused)
    role, name = ears.take_focused()[-1]
    assert role == Atspi.Role.TABLE_CELL and name.startswith("GAV Scubapro Hydros"), (role, name)

    # In the guide the selection follows the search, the focus stays in it.
    program.key("F1")
    index = program.find_anywhere(Atspi.Role.LIST, "Indice della guida")
    program.key("ctrl+f")
    ears.wait("the focus in the guide's search", lambda: ("Cerca nella guida…" in [name for _, name in ears.focused]))
    ears.take_focused()
    program.type("domande")
    until("the chapter", lambda: [row.get_name() for row in children(index)] == ["Domande frequenti"])
    ears.listen()
    told = ears.take_focused()
    assert not told, f"the guide's search lost the focus: {told}"
    program.key("ctrl+w")
    until("the end of the guide", lambda: len(program.windows()) == 1)
    program.close()
