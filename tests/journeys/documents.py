# SPDX-License-Identifier: MIT
"""The documents of a maintenance record, through the real file panel: attached in the form, opened, replaced, removed,
deleted with their record and with their item; the files and the stored state after every step."""

import json
import os
import re

from gi.repository import Atspi

from program import descendants, until

NAME = "Erogatore Apeks XTX50"
PANEL = "Seleziona il documento PDF"
STORED_NAME = r"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\."

SOURCES = {
    "Scontrino n° 7 «blu» d'aprile & 100%.PDF": b"%PDF-1.4 receipt\n\x00\xff",
    "certificato.pdf": b"%PDF-1.7 certificate\n",
    "senza estensione": b"%PDF-1.4 no extension\n",
    "appunti.txt": b"no document at all\n",
    "finto.pdf": b"no document either\n",
}
RECEIPT, CERTIFICATE, BARE, NOTES, FAKE = SOURCES


class Journey:
    def __init__(self, run, data):
        self.data = data
        self.sources = os.path.join(os.environ["HOME"], "da allegare")
        os.mkdir(self.sources)
        for name, content in SOURCES.items():
            with open(os.path.join(self.sources, name), "wb") as file:
                file.write(content)
        self.opened = os.path.join(os.environ["HOME"], "opened")
        self.install_opener(0)
        os.environ["PATH"] = os.path.join(os.environ["HOME"], "bin") + ":" + os.environ["PATH"]
        self.run = run
        self.program = run()

    def install_opener(self, status):
        folder = os.path.join(os.environ["HOME"], "bin")
        os.makedirs(folder, exist_ok=True)
        path = os.path.join(folder, "xdg-open")
        with open(path + ".new", "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\nprintf '%s' \"$1\" > '{self.opened}'\nexit {status}\n")
        os.chmod(path + ".new", 0o755)
        os.rename(path + ".new", path)

    # The stored state

    def item(self):
        with open(os.path.join(self.data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
            return next((entry for entry in json.load(file) if entry["name"] == NAME), None)

    def record(self):
        return self.item()["maintenanceHistory"][0]

    def path_of(self, name):
        return os.path.join(self.data, "MaintenanceDocuments", name)

    def content(self, name):
        with open(self.path_of(name), "rb") as file:
            return file.read()

    def wait_for_files(self, *names):
        folder = os.path.join(self.data, "MaintenanceDocuments")
        until(f"the documents {names}", lambda: sorted(os.listdir(folder)) == sorted(names))

    def wait_for_name(self, slot, extension):
        """The name stored in a slot of the record, once there is one."""
        name = until(f"a name in {slot}", lambda: self.record().get(slot))
        assert re.fullmatch(STORED_NAME + extension, name), name
        return name

    # The windows

    def select(self):
        self.program.key("ctrl+f")
        self.program.type("apeks")
        self.program.wait_for_rows([NAME])
        self.program.key("Tab", "Tab", "space")
        self.program.find(Atspi.Role.LABEL, "Dettagli Attrezzatura")

    def press(self, name, index=0):
        def look():
            found = [node for window in self.program.windows() for node in descendants(window)
                     if node.get_role() == Atspi.Role.PUSH_BUTTON and node.get_name() == name
                     and node.get_state_set().contains(Atspi.StateType.SHOWING)]
            return found[index] if len(found) > index else None
        self.program.press(until(f"button {name!r} number {index}", look))

    def wait_until_closed(self, title):
        until(f"the end of {title}",
              lambda: all(window.get_name() != title for window in self.program.windows()))

    def panel(self):
        return until("the file panel", lambda: next(
            (window for window in self.program.windows() if window.get_name() == PANEL), None))

    def enter_path(self, name):
        panel = self.panel()
        field = self.program.find(Atspi.Role.TEXT, "Nome del file:", panel)
        until("the focus in the panel", lambda: field.get_state_set().contains(Atspi.StateType.FOCUSED))
        assert field.get_editable_text_iface().set_text_contents(os.path.join(self.sources, name))
        return panel

    def pick(self, name):
        self.enter_path(name)
        self.program.key("Return")
        self.wait_until_closed(PANEL)

    def confirm(self, title):
        self.program.find_anywhere(Atspi.Role.LABEL, title)
        self.program.key("Tab", "space")  # from the safe button to the other
        self.wait_until_closed(title)

    # The steps

    def add_record_with_both(self):
        self.press("Aggiungi Manutenzione")
        self.program.find_anywhere(Atspi.Role.LABEL, "Nuova Manutenzione")
        self.program.type("Revisione")
        self.press("Carica scontrino (PDF)")
        self.check_panel()
        self.pick(RECEIPT)
        self.press("Carica certificato (PDF)")
        self.pick(CERTIFICATE)
        until("both documents", lambda: self.buttons("Rimuovi Scontrino") + self.buttons("Rimuovi Certificato") == 2)
        self.program.key("ctrl+Return")
        self.wait_until_closed("Nuova Manutenzione")
        receipt = self.wait_for_name("receiptFileName", "PDF")
        certificate = self.wait_for_name("certificateFileName", "pdf")
        self.wait_for_files(receipt, certificate)
        assert self.content(receipt) == SOURCES[RECEIPT]
        assert self.content(certificate) == SOURCES[CERTIFICATE]
        return receipt, certificate

    def buttons(self, name):
        return sum(len(self.program.all(Atspi.Role.PUSH_BUTTON, name, window)) for window in self.program.windows())

    def check_panel(self):
        """In Italian, for PDF documents only: another file is refused whatever its name, and the panel stays."""
        panel = self.panel()
        for text in ("Allega", "Annulla"):
            self.program.find(Atspi.Role.PUSH_BUTTON, text, panel)
        self.program.find(Atspi.Role.COMBO_BOX, "Documenti PDF (*.pdf)", panel)
        self.program.find(Atspi.Role.COMBO_BOX, os.environ["HOME"], panel)  # never where the program started
        for name in (NOTES, FAKE):
            self.enter_path(name)
            self.program.key("Return")
            self.program.find_anywhere(Atspi.Role.LABEL, "Non è un documento PDF.")
            self.program.press(self.program.find_anywhere(Atspi.Role.PUSH_BUTTON, "OK"))
            until("the end of the notice", lambda: self.buttons("OK") == 0)
            self.panel()

    def open_receipt(self, receipt):
        self.press("Scontrino")
        until("the opened document", lambda: os.path.exists(self.opened))
        with open(self.opened, encoding="utf-8") as file:
            assert file.read() == self.path_of(receipt)
        # Nothing can open it: the person gets to know, with the place of the file.
        self.install_opener(3)
        self.press("Scontrino")
        self.program.find_anywhere(Atspi.Role.LABEL, "Documento non aperto")
        self.press("OK")
        self.wait_until_closed("Documento non aperto")

    def replace_receipt(self, receipt, certificate):
        self.press("Sostituisci")
        self.wait_for_files(certificate)
        until("the empty slot", lambda: "receiptFileName" not in self.record())
        self.press("Carica Scontrino")
        self.panel()
        self.program.key("Escape")
        self.wait_until_closed(PANEL)
        assert "receiptFileName" not in self.record()
        self.press("Carica Scontrino")
        self.pick(BARE)
        replaced = self.wait_for_name("receiptFileName", "pdf")
        assert replaced != receipt
        self.wait_for_files(replaced, certificate)
        assert self.content(replaced) == SOURCES[BARE]
        return replaced

    def remove_certificate(self):
        self.press("Modifica", 1)  # the first one edits the item
        self.program.find_anywhere(Atspi.Role.LABEL, "Modifica Manutenzione")
        self.press("Rimuovi Certificato")
        until("the removal in the form", lambda: self.buttons("Rimuovi Certificato") == 0)

    def remove_in_the_form(self, receipt, certificate):
        # Removed in a form that is cancelled, it stays.
        self.remove_certificate()
        self.wait_for_files(receipt, certificate)
        self.press("Annulla")
        self.wait_until_closed("Modifica Manutenzione")
        self.wait_for_files(receipt, certificate)
        assert self.record()["certificateFileName"] == certificate
        assert self.content(certificate) == SOURCES[CERTIFICATE]
        self.remove_certificate()
        self.program.key("ctrl+Return")
        self.wait_until_closed("Modifica Manutenzione")
        until("the removal", lambda: "certificateFileName" not in self.record())
        self.wait_for_files(receipt)
        assert self.record()["receiptFileName"] == receipt
        # Attached in a form that is cancelled, it goes again.
        self.press("Modifica", 1)
        self.program.find_anywhere(Atspi.Role.LABEL, "Modifica Manutenzione")
        self.press("Carica certificato (PDF)")
        self.pick(CERTIFICATE)
        until("the second file", lambda: len(os.listdir(os.path.join(self.data, "MaintenanceDocuments"))) == 2)
        self.press("Annulla")
        self.wait_until_closed("Modifica Manutenzione")
        self.wait_for_files(receipt)
        self.press("Carica Certificato")
        self.pick(CERTIFICATE)
        again = self.wait_for_name("certificateFileName", "pdf")
        assert again != certificate
        self.wait_for_files(receipt, again)

    def delete_record(self):
        self.press("Elimina", 1)
        self.confirm("Elimina Manutenzione")
        self.program.find(Atspi.Role.LABEL, "Nessuna manutenzione registrata")
        self.wait_for_files()
        assert self.item()["maintenanceHistory"] == []

    def delete_item(self):
        self.press("Disattiva")
        until("the inactive item", lambda: self.item()["isActive"] is False)
        self.press("Elimina")
        self.confirm("Conferma Eliminazione")
        until("the end of the item", lambda: self.item() is None)
        self.wait_for_files()


def journey(run, data):
    j = Journey(run, data)
    j.select()
    receipt, certificate = j.add_record_with_both()
    j.open_receipt(receipt)
    receipt = j.replace_receipt(receipt, certificate)
    j.remove_in_the_form(receipt, certificate)
    j.delete_record()
    kept = j.add_record_with_both()
    j.program.close()

    # After a new start the documents are where they were.
    j.program = run()
    j.select()
    assert j.buttons("Sostituisci") == 2
    j.wait_for_files(*kept)
    j.delete_item()
    j.program.close()
    for name, content in SOURCES.items():  # what was picked was copied, never moved
        with open(os.path.join(j.sources, name), "rb") as file:
            assert file.read() == content, name
