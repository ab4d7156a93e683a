# SPDX-License-Identifier: MIT
"""A window manager that takes its time: a new window is on show to readers before it has the keyboard, and keys that are
meant for it wait until it has."""

import os
import signal

from gi.repository import Atspi

from desktop import WINDOW_MANAGER
from program import until


def journey(run, _data):
    manager = int(os.environ[WINDOW_MANAGER])
    program = run()
    until("the keyboard in the main window", program.takes_keys)
    os.kill(manager, signal.SIGSTOP)
    try:
        program.key("F1")
        program.find_anywhere(Atspi.Role.LIST, "Indice della guida")
        assert program.window.get_state_set().contains(Atspi.StateType.ACTIVE)
        assert not program.takes_keys()
    finally:
        os.kill(manager, signal.SIGCONT)
    program.key("ctrl+w")
    until("the main window alone", lambda: program.windows() == [program.window])
    program.close()
