# SPDX-License-Identifier: MIT
"""Where no file may grow, nothing is stored: the program says why and goes on."""

import os

from gi.repository import Atspi


def journey(run, data):
    program = run(shell='ulimit -f 0; exec "$0" "$@"')
    program.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])
    program.find(Atspi.Role.LABEL, "3 articoli")
    program.close()
    assert any("File too large" in line for line in program.lines), program.lines
    assert os.listdir(os.path.join(data, "preferences")) == [], os.listdir(os.path.join(data, "preferences"))
