# SPDX-License-Identifier: MIT
"""What the File menu takes in and gives out, with nothing but keys: a table exported, another imported, a sheet as PDF, a
copy of everything, and the way back to it."""

import json
import os
import subprocess
import zipfile

from gi.repository import Atspi

from keyboard import tab_to, wait_for_focus_on, wait_until_closed
from program import until

TABLE = ("Oggetto;Categoria;Marca;Modello;Matricola;Ultima revisione\r\n"
         "Bombola 12 litri;Bombola;Luxfer;12L;LX-1;10/03/2026\r\n"
         "Erogatore Apeks XTX50;Erogatore;Apeks;XTX50;AP123456;\r\n"
         "Torcia;Torcia;Big Blue;AL1200;BB-1;31/02/2026\r\n")


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def notice(program, text):
    """Waits for one that says so, and closes it."""
    until(f"the notice {text!r}", lambda: any(text in (node.get_name() or "") for window in program.windows()
                                              for node in program.all(Atspi.Role.LABEL, within=window)))
    wait_for_focus_on(program, "OK")
    program.key("Return")
    until("the end of the notice", lambda: all(window.get_name() == "Abissora" for window in program.windows()))
    program.wait_for_focus()


def choose_file(program, title, path):
    program.find_anywhere(Atspi.Role.DIALOG, title)
    wait_for_focus_on(program, "Nome del file")
    program.key("ctrl+a")
    program.type(path)
    program.key("Return")


def journey(run, data):
    home = os.environ["HOME"]
    program = run()
    program.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])

    # Out: the items as a table.
    table = os.path.join(home, "articoli.csv")
    program.key("ctrl+e")
    choose_file(program, "Esporta", table)
    notice(program, "Esportati 3 articoli")
    with open(table, encoding="utf-8-sig") as file:
        lines = file.read().splitlines()
    assert lines[0].startswith("Nome;Tipo;Marca;") and len(lines) == 4, lines

    # In: one row is new, one is there already, one has a day that is none.
    club = os.path.join(home, "club.csv")
    with open(club, "wb") as file:
        file.write(TABLE.encode("cp1252"))
    program.key("alt+f", "i")
    choose_file(program, "Importa", club)
    wait_for_focus_on(program, "Righe da importare")
    tab_to(program, "Importa 1 articolo")
    program.key("Return")
    notice(program, "Importato 1 articolo.")
    until("the new item", lambda: "Bombola 12 litri" in program.row_names())
    until("the stored item", lambda: len(stored(data)) == 4)
    assert stored(data)[3]["lastServiceDate"].startswith("2026-03-10"), stored(data)[3]
    program.wait_for_lines(["📥 Importati 1 equipaggiamenti e 0 manutenzioni"])

    # On paper: the sheet of the selected item as PDF.
    program.key("ctrl+f")
    program.type("Bombola")
    program.wait_for_rows(["Bombola 12 litri"])
    program.key("Down")
    wait_for_focus_on(program, "Bombola 12 litri")
    sheet = os.path.join(home, "scheda.pdf")
    program.key("ctrl+p")
    wait_for_focus_on(program, "Scheda")
    tab_to(program, "Salva PDF…")
    program.key("Return")
    choose_file(program, "Salva PDF", sheet)
    until("the PDF", lambda: os.path.exists(sheet))
    wait_until_closed(program, "Salva PDF")
    text = subprocess.run(["pdftotext", "-layout", sheet, "-"], check=True, capture_output=True, text=True).stdout
    assert "Bombola 12 litri" in text and "LX-1" in text, text
    if any(window.get_name() == "Stampa" for window in program.windows()):
        program.key("Escape")
    wait_until_closed(program, "Stampa")

    # Everything in one file; then the register without its new item, and back.
    copy = os.path.join(home, "copia.zip")
    program.key("alt+f", "u")
    choose_file(program, "Crea una copia", copy)
    notice(program, "4 articoli")
    assert "preferences/savedEquipment.json" in zipfile.ZipFile(copy).namelist()
    program.key("ctrl+f", "ctrl+a")
    program.type("Bombola")
    program.key("Down")
    wait_for_focus_on(program, "Bombola 12 litri")
    program.key("Delete")
    wait_for_focus_on(program, "Annulla")
    tab_to(program, "Elimina")
    program.key("Return")
    until("the register without it", lambda: len(stored(data)) == 3)
    until("the end of the question", lambda: len(program.windows()) == 1)
    program.wait_for_focus()
    program.key("alt+f", "r")
    program.find_anywhere(Atspi.Role.DIALOG, "Ripristina")
    tab_to(program, "Da un file…")
    program.key("Return")
    choose_file(program, "Ripristina da un file", copy)
    wait_until_closed(program, "Ripristina da un file")
    until("what the copy would bring", lambda: any(
        (node.get_name() or "").startswith("Copia del") for window in program.windows()
        for node in program.all(Atspi.Role.LABEL, within=window)))
    tab_to(program, "Ripristina")
    program.key("Return")
    until("the item is back", lambda: len(stored(data)) == 4)
    program.wait_for_window(Atspi.Role.FRAME)
    until("its row", lambda: "Bombola 12 litri" in program.row_names())
    program.close()
