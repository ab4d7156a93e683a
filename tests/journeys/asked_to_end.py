# SPDX-License-Identifier: MIT
"""Whoever ends the program by a signal loses nothing: it ends as from the menu, and keeps elsewhere what cannot be
stored. A signal that was ignored when it started stays so."""

import os
import signal

from gi.repository import Atspi

from going_back import FIRST, SECOND, THIRD, command, delete_first_row


def journey(run, data):
    preferences = os.path.join(data, "preferences")
    away = os.path.join(data, "away")
    program = run()
    program.wait_for_rows([FIRST, SECOND, THIRD])
    program.find(Atspi.Role.LABEL, "3 articoli")
    os.rename(preferences, away)
    with open(preferences, "w", encoding="utf-8") as file:
        file.write("in the way")
    delete_first_row(program)
    program.wait_for_rows([SECOND, THIRD])
    program.process.send_signal(signal.SIGTERM)
    program.wait_for_end(0)

    os.remove(preferences)
    os.rename(away, preferences)
    listed = command(program, data, "--list-states").stdout.splitlines()
    assert "-emergency\t" in listed[0] and "articoli: 2," in listed[0], listed

    program = run(shell='trap "" HUP; exec "$0" "$@"')
    program.wait_for_rows([FIRST, SECOND, THIRD])
    program.process.send_signal(signal.SIGHUP)
    program.key("ctrl+f")
    program.type("apeks")
    program.wait_for_rows([THIRD])
    program.process.send_signal(signal.SIGINT)
    program.wait_for_end(0)
