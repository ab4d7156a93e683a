# SPDX-License-Identifier: MIT
"""Back to an earlier state through the menu, and forward again from the command line."""

import subprocess

from gi.repository import Atspi

from program import until

FIRST, SECOND, THIRD = "Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"


def delete_first_row(program):
    program.table().add_row_selection(0)
    pane = until("the item's pane", lambda: program.all(Atspi.Role.PUSH_BUTTON, "Elimina"))
    program.press(pane[0])
    alert = program.find_anywhere(Atspi.Role.ALERT)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Elimina", alert))


def command(program, data, *arguments):
    return subprocess.run([program.path, "--data-dir", data, *arguments], capture_output=True, text=True,
                          encoding="utf-8", check=False)


def journey(run, data):
    program = run()
    program.wait_for_rows([FIRST, SECOND, THIRD])
    delete_first_row(program)
    program.wait_for_rows([SECOND, THIRD])
    delete_first_row(program)
    program.wait_for_rows([THIRD])

    program.key("alt+f", "r")
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "Ripristina"))
    until("the register loaded anew", lambda: program.lines.count("📦 Caricati 2 equipaggiamenti") == 1)
    program.wait_for_window(Atspi.Role.FRAME)
    program.wait_for_rows([SECOND, THIRD])

    listed = command(program, data, "--list-states")
    assert listed.returncode == 0 and len(listed.stdout.splitlines()) == 2, listed.stdout
    undone = next(line.split("\t")[0] for line in listed.stdout.splitlines() if "-restoration\t" in line)
    refused = command(program, data, "--restore", undone)
    assert refused.returncode == 75 and "è aperta su questo registro" in refused.stderr, refused.stderr
    program.close()

    restored = command(program, data, "--restore", undone)
    assert restored.returncode == 0, restored.stderr
    program = run()
    program.wait_for_rows([THIRD])
    assert command(program, data, "--check").returncode == 0
    program.close()
