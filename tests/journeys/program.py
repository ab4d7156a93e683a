# SPDX-License-Identifier: MIT
"""The real program, read and driven from outside through the accessibility bus."""

import os
import subprocess
import threading
from datetime import datetime, timezone
from zoneinfo import ZoneInfo

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

import patience  # noqa: E402
from patience import PATIENCE  # noqa: E402

ZONE = "Europe/Rome"

# What the window manager gives the keyboard to; menus take it without being active.
KEYBOARD_ROLES = (Atspi.Role.ALERT, Atspi.Role.DIALOG, Atspi.Role.FRAME, Atspi.Role.WINDOW)
# Windows that come without it, by their titles.
WITHOUT_KEYBOARD = ("Aggiornamento disponibile",)

# Milliseconds for an answer of the program. The library's own patience, 800 of them, ends before a busy machine gives
# the program its turn: a name is then empty, an action fails.
Atspi.set_timeout(int(PATIENCE * 1000), int(PATIENCE * 1000))


def until(what, condition):
    """As patience.until; an object that went away while it was being read is a no."""
    return patience.until(what, condition, passing=GLib.Error)


def local(instant):
    return datetime.fromisoformat(instant.replace("Z", "+00:00")).astimezone(ZoneInfo(ZONE))


def local_day(instant):
    """The day of a stored instant where the program runs, which late in the evening is not the one in UTC."""
    return local(instant).strftime("%Y-%m-%d")


def on_local_day(instant, day):
    """The same time of day on another day."""
    moved = datetime.fromisoformat(day + local(instant).strftime("T%H:%M:%S")).replace(tzinfo=ZoneInfo(ZONE))
    return moved.astimezone(timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")


def children(node):
    return [child for child in (node.get_child_at_index(i) for i in range(node.get_child_count())) if child]


def descendants(node, deep_tables=False):
    for child in children(node):
        yield child
        if deep_tables or child.get_role() != Atspi.Role.TABLE:
            yield from descendants(child, deep_tables)


class Program:
    def __init__(self, path, data_dir, arguments=(), role=Atspi.Role.FRAME, shell=None, reads=True):
        """Comes back once a window of that role is there: the main window, or an alert in its place. `shell` starts
        the program as "$0" "$@" and may do something beforehand. Unless `reads`, nobody reads the program's output
        before start_reading()."""
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
                           LC_ALL="C.UTF-8", LANGUAGE="", TZ=ZONE)
        environment.pop("ABISSORA_DATA_DIR", None)
        self.path = path
        self.lines = []
        self.with_keyboard_once = set()
        command = [path, "--data-dir", data_dir, *arguments]
        if shell:
            command = ["sh", "-c", shell, *command]
        self.process = subprocess.Popen(command, env=environment,
                                        stdout=subprocess.PIPE, text=True, encoding="utf-8")
        self.reader = threading.Thread(target=self._read, daemon=True)
        if reads:
            self.start_reading()
        self.wait_for_window(role)

    def start_reading(self):
        self.reader.start()

    def _read(self):
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n"))

    def wait_for_window(self, role):
        self.window = until(f"the {role.value_nick}", lambda: self._find_window(role))

    def _find_window(self, role):
        assert self.process.poll() is None, f"the program ended with {self.process.returncode} before it had a window"
        for application in children(Atspi.get_desktop(0)):
            if application.get_process_id() != self.process.pid:
                continue
            for window in children(application):
                if window.get_role() == role and window.get_state_set().contains(Atspi.StateType.SHOWING):
                    return window
        return None

    def windows(self):
        application = self.window.get_application()
        return [window for window in children(application)
                if window.get_state_set().contains(Atspi.StateType.SHOWING)]

    # Finding

    def all(self, role, name=None, within=None):
        return [node for node in descendants(within or self.window)
                if node.get_role() == role and (name is None or node.get_name() == name)
                and node.get_state_set().contains(Atspi.StateType.SHOWING)]

    def find(self, role, name=None, within=None):
        return until(f"{role.value_nick} {name!r}", lambda: next(iter(self.all(role, name, within)), None))

    def find_anywhere(self, role, name=None):
        """In any window of the program, those over the main window first: alerts, sheets, menus."""
        def look():
            for window in sorted(self.windows(), key=lambda w: w == self.window):
                for node in [window, *descendants(window)]:
                    if node.get_role() == role and (name is None or node.get_name() == name) \
                            and node.get_state_set().contains(Atspi.StateType.SHOWING):
                        return node
            return None
        return until(f"{role.value_nick} {name!r} in some window", look)

    # Reading

    def table(self):
        return self.find(Atspi.Role.TABLE).get_table_iface()

    def row_names(self):
        table = self.table()
        return [table.get_accessible_at(row, 0).get_name().split("\n")[0] for row in range(table.get_n_rows())]

    def wait_for_rows(self, names):
        until(f"the rows {names}", lambda: self.row_names() == names)

    def wait_for_lines(self, expected, start=0):
        """The lines stand in the log in this order, each directly after the one before it."""
        def look():
            log = self.lines[start:]
            return any(log[i:i + len(expected)] == expected for i in range(len(log) - len(expected) + 1))
        until("the log lines " + " / ".join(expected), look)

    def selected_sidebar_row(self):
        sidebar = self.find(Atspi.Role.LIST, "Barra laterale")
        chosen = [row.get_name() for row in children(sidebar)
                  if row.get_state_set().contains(Atspi.StateType.SELECTED)]
        return chosen[0] if chosen else None

    # Acting

    @staticmethod
    def press(node):
        def is_ready():
            states = node.get_state_set()
            return states.contains(Atspi.StateType.SENSITIVE) or not states.contains(Atspi.StateType.VISIBLE)
        # One that must not be pressed yet takes the action and does nothing. What is gone has no states.
        until("what can be pressed", is_ready)
        actions = node.get_action_iface()
        assert actions, "what should be pressed is gone, or takes no action"
        names = [actions.get_action_name(i) for i in range(actions.get_n_actions())]
        for wanted in ("Press", "press", "Toggle", "click", "ShowMenu", "showMenu"):
            if wanted in names:
                assert actions.do_action(names.index(wanted))
                return
        raise AssertionError(f"{node.get_name()!r} has no action to press it: {names}")

    def select_in_sidebar(self, name):
        sidebar = self.find(Atspi.Role.LIST, "Barra laterale")
        rows = [row.get_name() for row in children(sidebar)]
        assert sidebar.get_table_iface().add_row_selection(rows.index(name)), name

    def takes_keys(self):
        """Whether a window has the keyboard, one of the new ones if there are such. The window manager gives it later
        than a window is seen: until then keys would go to the window before it, or be lost."""
        windows = self.windows()
        active = [window for window in windows if window.get_state_set().contains(Atspi.StateType.ACTIVE)]
        new = [window for window in windows if window not in self.with_keyboard_once
               and window.get_role() in KEYBOARD_ROLES and window.get_name() not in WITHOUT_KEYBOARD]
        if not active or (new and not any(window in active for window in new)):
            return False
        self.with_keyboard_once.update(windows)
        return True

    def wait_for_focus(self):
        until("the keyboard in the newest window", self.takes_keys)

    def key(self, *names):
        """Presses keys by their X names; "ctrl+f" holds one down."""
        self.wait_for_focus()
        subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)

    def type(self, text):
        self.wait_for_focus()
        subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "15", text], check=True)

    def close(self):
        self.key("ctrl+q")
        self.wait_for_end(0)

    def wait_for_end(self, expected):
        status = self.process.wait(timeout=PATIENCE)
        if self.reader.ident:
            self.reader.join()
        assert status == expected, f"the program ended with {status}"

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
