# SPDX-License-Identifier: MIT
"""A second start on the same register: it ends at once and leaves the first one running. Where the first does not answer
a window says so; from there the person tries again or leaves."""

import os
import signal
import subprocess

from gi.repository import Atspi

from program import PATIENCE, until

NO_ANSWER = "Abissora è già aperta su questo registro, ma non risponde."


def journey(run, data):
    first = run()
    command = [first.process.args[0], "--data-dir", data]

    second = subprocess.run(command, capture_output=True, text=True, timeout=PATIENCE, check=True)
    assert "è già aperta" in second.stderr, second.stderr
    assert second.stdout == "", second.stdout
    assert first.process.poll() is None

    # What the second was started for, the first does; a form that is open stays as it is.
    def start_again(*arguments):
        subprocess.run([*command, *arguments], capture_output=True, text=True, timeout=PATIENCE, check=True)

    start_again("--show-due")
    first.find(Atspi.Role.LABEL, "Panoramica Manutenzione")
    start_again("--new-item")
    name = first.find_anywhere(Atspi.Role.TEXT, "Nome*")
    until("the focus in the form", lambda: name.get_state_set().contains(Atspi.StateType.FOCUSED))
    first.type("Torcia")
    start_again("--new-item")
    start_again("--show-due")
    start_again()
    first.type(" di riserva")
    text = name.get_text_iface()
    until("the whole name", lambda: text.get_text(0, text.get_character_count()) == "Torcia di riserva")
    first.key("ctrl+a", "BackSpace", "Escape")
    until("the main window alone", lambda: len(first.windows()) == 1)
    first.key("ctrl+1")
    first.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])

    # The first does nothing any more.
    first.process.send_signal(signal.SIGSTOP)
    picture = os.path.join(data, "finestra.png")
    drawing = subprocess.run([*command, "--snapshot", picture], capture_output=True, text=True, timeout=PATIENCE,
                             check=False)
    assert (drawing.returncode, drawing.stdout, drawing.stderr) == (1, "", NO_ANSWER + "\n"), drawing
    assert not os.path.exists(picture)

    def start_in_vain():
        started = run(role=Atspi.Role.ALERT)
        started.find(Atspi.Role.LABEL, NO_ANSWER)
        return started

    second = start_in_vain()
    second.key("Escape")
    second.wait_for_end(1)

    second = start_in_vain()
    second.press(second.find(Atspi.Role.PUSH_BUTTON, "Esci"))
    second.wait_for_end(1)

    # It goes on: tried again, the first comes forward.
    second = start_in_vain()
    first.process.send_signal(signal.SIGCONT)
    first.find(Atspi.Role.LABEL, "3 articoli")
    second.press(second.find(Atspi.Role.PUSH_BUTTON, "Riprova"))
    second.wait_for_end(0)
    assert first.process.poll() is None

    # It ends: tried again, the second takes its place.
    first.process.send_signal(signal.SIGSTOP)
    second = start_in_vain()
    first.kill()
    second.press(second.find(Atspi.Role.PUSH_BUTTON, "Riprova"))
    second.wait_for_window(Atspi.Role.FRAME)
    second.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])
    second.close()

    # Started for something, the first start does it too.
    asked = run("--new-item")
    asked.find_anywhere(Atspi.Role.TEXT, "Nome*")
    asked.key("Escape")
    until("the main window alone", lambda: len(asked.windows()) == 1)
    asked.close()
    assert "abissora.lock" not in os.listdir(data)
