# SPDX-License-Identifier: MIT
"""The program that looks for no newer releases: it says nothing of them, and a register that another program left with
the check at start switched on opens as any other."""

import os

from gi.repository import Atspi

from program import children, until


def journey(run, data):
    os.mkdir(os.path.join(data, "preferences"))
    with open(os.path.join(data, "preferences", "checkForUpdatesOnLaunch.json"), "w", encoding="utf-8") as file:
        file.write("true")

    program = run()
    program.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])
    program.select_in_sidebar("Impostazioni")
    program.find(Atspi.Role.LABEL, "Configura la tua esperienza")
    program.find(Atspi.Role.CHECK_BOX, "Modalità Scura")
    assert not program.all(Atspi.Role.CHECK_BOX, "Controlla aggiornamenti all'avvio")
    assert not program.all(Atspi.Role.PUSH_BUTTON, "Controlla aggiornamenti ora")
    program.find(Atspi.Role.LABEL, "Versione")

    program.key("F1")
    index = program.find_anywhere(Atspi.Role.LIST, "Indice della guida")
    titles = until("the guide", lambda: [row.get_name() for row in children(index)])
    assert "Impostazioni" in titles and "Aggiornamenti" not in titles, titles
    program.key("ctrl+w")
    until("the main window alone", lambda: len(program.windows()) == 1)
    program.close()
