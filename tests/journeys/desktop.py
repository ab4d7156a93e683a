# SPDX-License-Identifier: MIT
"""A desktop of its own for one journey: a virtual screen, a window manager and the bus of screen readers, all ended
afterwards. The program finds it whole; what did not come is named."""

import contextlib
import os
import re
import subprocess

from gi.repository import Gio, GLib

from patience import PATIENCE, until


# The environment of a journey names the process of its window manager.
WINDOW_MANAGER = "JOURNEY_WINDOW_MANAGER"


class NoDesktop(Exception):
    """Says which part of the desktop is missing. The program under test has no part in it."""


def _wait_for(what, process, condition):
    """The condition's first true result, or NoDesktop once `process` has ended or everybody's patience is over."""
    def look():
        if process.poll() is not None:
            raise NoDesktop(f"{what} ended with {process.returncode}")
        return condition()
    try:
        return until(what, look)
    except AssertionError as waited:
        raise NoDesktop(str(waited)) from None


def _window_named_by(*window):
    """The window that is in the property by which a window manager says that it is there."""
    answer = subprocess.run(["xprop", *window, "-notype", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True,
                            check=False)
    found = re.search(r"# (0x[0-9a-f]+)", answer.stdout)
    return found[1] if found else None


def _manager_of_windows():
    """A property of the root outlives who wrote it; the window that it names does not, and names itself."""
    window = _window_named_by("-root")
    return window if window and _window_named_by("-id", window) == window else None


def _ask(connection, name, path, method, arguments=None):
    """Calls `method`, written as interface.member."""
    interface, _, member = method.rpartition(".")
    return connection.call_sync(name, path, interface, member, arguments, None, Gio.DBusCallFlags.NONE,
                                int(PATIENCE * 1000), None).unpack()


def start_bus_of_readers():
    """Within a session bus: what screen readers ask. The bus starts it when it is first asked, and toolkits do not wait
    as long as that may take."""
    part = "the session bus (dbus-run-session)"
    try:
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        part = "the bus of screen readers (at-spi-bus-launcher)"
        address, = _ask(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus.GetAddress")
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        readers = Gio.DBusConnection.new_for_address_sync(address, flags)
        part = "the registry of what can be read (at-spi2-registryd)"
        _ask(readers, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus.StartServiceByName",
             GLib.Variant("(su)", ("org.a11y.atspi.Registry", 0)))
    except GLib.Error as error:
        raise NoDesktop(f"{part} did not come: {error.message}") from None


class Desktop(contextlib.AbstractContextManager):
    """A screen with a window manager."""

    def __init__(self):
        self.processes = []

    def _start(self, *command, **options):
        try:
            process = subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)
        except FileNotFoundError as missing:
            raise NoDesktop(f"there is no {missing.filename}") from None
        self.processes.append(process)
        return process

    def _start_screen(self):
        reading, writing = os.pipe()
        try:
            # Without -noreset the screen starts anew when its last client goes, and turns away who comes meanwhile.
            screen = self._start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24",
                                 "-nolisten", "tcp", "-noreset", pass_fds=[writing])
        finally:
            os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise NoDesktop(f"the screen (Xvfb) ended with {screen.wait()}")
        os.environ["DISPLAY"] = ":" + number
        os.environ.pop("WAYLAND_DISPLAY", None)

    def __enter__(self):
        try:
            self._start_screen()
            manager = self._start("openbox", "--sm-disable")
            _wait_for("the window manager (openbox)", manager, _manager_of_windows)
            os.environ[WINDOW_MANAGER] = str(manager.pid)
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *error):
        for process in reversed(self.processes):
            process.terminate()
        for process in self.processes:
            process.wait()
