# SPDX-License-Identifier: MIT
"""The desktop finds the entry, and with it name and icon, that a window belongs to: on X11 by the class that the entry
names, on Wayland by the entry's own file name."""

import configparser
import contextlib
import os
import re
import subprocess
from pathlib import Path

from program import until

SOCKET = "abissora-journey"


def window_class(pid):
    """The class of the program's main window on X11."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(pid), "--name", "Abissora"],
                           capture_output=True, text=True, check=False).stdout.split()
    if len(found) != 1:
        return None
    shown = subprocess.run(["xprop", "-id", found[0], "WM_CLASS"], capture_output=True, text=True, check=True).stdout
    return re.fullmatch(r'WM_CLASS\(STRING\) = "[^"]*", "([^"]*)"\n', shown)[1]


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
    found = until("the main window", lambda: window_class(program.process.pid))
    wanted = entry["Desktop Entry"]["StartupWMClass"]
    assert found == wanted, f"the window's class is {found}, the entry asks for {wanted}"
    program.close()
    with wayland():
        found = application_id(program.path, data)
    assert found == path.stem, f"the window belongs to {found}, the entry is called {path.stem}"
