# SPDX-License-Identifier: MIT
"""From an empty folder: the three samples, filters, search, and what is on disk when the program ends."""

import json
import os

from gi.repository import Atspi

SAMPLES = ["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"]


def journey(run, data):
    program = run()
    program.wait_for_lines([
        "📦 Caricati 3 equipaggiamenti",
        "   📌 Erogatore Apeks XTX50: type='Erogatore', customType='nil'",
        "   📌 GAV Scubapro Hydros: type='GAV', customType='nil'",
        "   📌 Computer Suunto EON Core: type='Computer Subacqueo', customType='nil'",
    ])
    program.wait_for_rows(SAMPLES)
    program.find(Atspi.Role.LABEL, "3 articoli")
    program.find(Atspi.Role.LABEL, "3 attivi")
    assert program.table().get_accessible_at(0, 3).get_name().endswith("\nSCADUTO!")
    assert [program.table().get_column_description(i) for i in range(6)] == [
        "Nome", "Marca", "Modello", "Prossimo Tagliando", "Stato", "Azioni"]
    for name in ("Aggiorna", "Aggiungi", "Filtro"):
        program.find(Atspi.Role.PUSH_BUTTON, name)

    # A category narrows the list down and is followed by the chip.
    program.select_in_sidebar("GAV")
    program.wait_for_rows(["GAV Scubapro Hydros"])
    program.wait_for_lines(["🔄 Sidebar selection changed to: type_GAV", "🎯 Categoria selezionata: GAV",
                            "🎯 FILTRO PER NOME: 'GAV'", "📌 filterTypeName cambiato da nil a GAV",
                            "   ✅ filterTypeName impostato a: 'GAV'", "📌 filterTypeName cambiato a: GAV"])
    program.select_in_sidebar("Tutti gli articoli")
    program.wait_for_rows(SAMPLES)

    # Searching by keyboard alone.
    program.key("ctrl+f")
    program.type("apeks")
    program.wait_for_rows(["Erogatore Apeks XTX50"])
    program.key("Escape")
    program.wait_for_rows(SAMPLES)
    program.type("niente di simile")
    program.find(Atspi.Role.LABEL, "Nessuna attrezzatura trovata")
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Cancella filtri"))
    program.wait_for_rows(SAMPLES)

    program.close()
    stored = sorted(os.listdir(os.path.join(data, "preferences")))
    assert stored == ["equipmentTypes.json", "iconSetVersion.json"], stored
    with open(os.path.join(data, "preferences", "iconSetVersion.json"), encoding="utf-8") as file:
        assert json.load(file) == 4
    with open(os.path.join(data, "preferences", "equipmentTypes.json"), encoding="utf-8") as file:
        assert [record["name"] for record in json.load(file)][:2] == ["Erogatore", "GAV"]
