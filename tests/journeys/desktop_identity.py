# SPDX-License-Identifier: MIT
"""The desktop finds the entry, and with it name and icon, that a window belongs to: on X11 by the class that the entry
names, on Wayland by the entry's own file name. On X11 a window brings its icon, in the sizes of panels and switchers."""

import configparser
import contextlib
import os
import re
import subprocess
from pathlib import Path

from program import until

SOCKET = "abissora-journey"
PANEL_SIDES = {16, 22, 24, 32, 48}  # pixels


def main_window(pid):
    """The number of the program's main window on X11."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(pid), "--name", "Abissora"],
                           capture_output=True, text=True, check=False).stdout.split()
    return found[0] if len(found) == 1 else None


def shown_property(window, name):
    return subprocess.run(["xprop", "-id", window, name], capture_output=True, text=True, check=True).stdout


def window_class(window):
    return re.fullmatch(r'WM_CLASS\(STRING\) = "[^"]*", "([^"]*)"\n', shown_property(window, "WM_CLASS"))[1]


def icon_sides(window):
    return {int(side) for side in re.findall(r"Icon \((\d+) x \1\)", shown_property(window, "_NET_WM_ICON"))}


@contextlib.contextmanager
def wayland():
    compositor = subprocess.Popen(["weston", "--backend=headless-backend.so", f"--socket={SOCKET}", "--no-config"],
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        until("the compositor", Path(os.environ["XDG_RUNTIME_DIR"], SOCKET).exists)
        yield
    finally:
        compositor.terminate()
        compositor.wait()


def application_id(path, data):
    """What the program tells a Wayland compositor that it is. The library of the protocol writes what is sent."""
    environment = dict(os.environ, QT_QPA_PLATFORM="wayland", WAYLAND_DISPLAY=SOCKET, WAYLAND_DEBUG="1")
    program = subprocess.Popen([path, "--data-dir", data], env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE, text=True, errors="replace")
    try:
        return next((found[1] for found in (re.search(r'set_app_id\("([^"]*)"\)', line) for line in program.stderr)
                     if found), None)
    finally:
        program.kill()
        program.wait()


def journey(run, data):
    path = Path(os.environ["ABISSORA_DESKTOP_ENTRY"])
    entry = configparser.RawConfigParser()
    entry.optionxform = str
    entry.read_string(path.read_text(encoding="utf-8"))

    program = run()
    window = until("the main window", lambda: main_window(program.process.pid))
    found = window_class(window)
    wanted = entry["Desktop Entry"]["StartupWMClass"]
    assert found == wanted, f"the window's class is {found}, the entry asks for {wanted}"
    assert icon_sides(window) >= PANEL_SIDES, f"the window has its icon in {icon_sides(window)}"
    program.close()
    with wayland():
        found = application_id(program.path, data)
    assert found == path.stem, f"the window belongs to {found}, the entry is called {path.stem}"
