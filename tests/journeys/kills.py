# SPDX-License-Identifier: MIT
"""Kills the program at random moments while it stores one change after the other. After each kill the register is whole,
its documents are there, and the program starts on it. ABISSORA_KILLS says how many times."""

import json
import os
import random
import subprocess
import threading

import gi
from gi.repository import Atspi

from program import until

ITEMS = 300
LONGEST = 1.0  # seconds of changes before a kill


def identifier(group, n):
    return f"00000000-0000-4000-{group}-{n:012d}"


def record(n):
    return {"id": identifier("9000", n), "date": "2025-03-14T09:26:53Z", "type": "Riparazione",
            "description": "Revisione", "performedBy": "Officina Blu", "cost": 120.5, "notes": "",
            "nextServiceDate": "2027-03-14T09:26:53Z", "receiptFileName": identifier("A000", n) + ".pdf"}


def item(n):
    return {"id": identifier("8000", n), "name": f"Articolo {n:03d}", "type": "GAV", "brand": "Marca", "model": "",
            "serialNumber": "", "purchaseDate": "2024-01-02T03:04:05Z", "lastServiceDate": "2025-03-14T09:26:53Z",
            "nextServiceDate": "2027-03-14T09:26:53Z", "notes": "", "isActive": True,
            "maintenanceHistory": [record(n)]}


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def without_state(items):
    return [{key: value for key, value in entry.items() if key != "isActive"} for entry in items]


def changes_of(program):
    return sum(line.startswith("✏️ Aggiornato") for line in program.lines)


def change_until_killed(program):
    button = until("the item's pane", lambda: next(
        (button for name in ("Disattiva", "Attiva") for button in program.all(Atspi.Role.PUSH_BUTTON, name)), None))
    killer = threading.Timer(random.uniform(0, LONGEST), program.process.kill)
    killer.start()
    try:
        while program.process.poll() is None:
            before = changes_of(program)
            program.press(button)
            # A button that is pressed once more while it is down stays down.
            until("a change", lambda: changes_of(program) > before or program.process.poll() is not None)
    except (gi.repository.GLib.Error, AssertionError):
        pass  # it is gone
    killer.join()
    program.process.wait()
    program.reader.join()


def journey(run, data):
    kills = int(os.environ.get("ABISSORA_KILLS", "20"))
    os.mkdir(os.path.join(data, "preferences"))
    os.mkdir(os.path.join(data, "MaintenanceDocuments"))
    register = [item(n) for n in range(ITEMS)]
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "w", encoding="utf-8") as file:
        json.dump(register, file)
    for entry in register:
        name = entry["maintenanceHistory"][0]["receiptFileName"]
        with open(os.path.join(data, "MaintenanceDocuments", name), "wb") as file:
            file.write(b"%PDF-1.4\n")

    changes = 0
    for _ in range(kills):
        program = run()
        program.wait_for_lines([f"📦 Caricati {ITEMS} equipaggiamenti"])
        program.table().add_row_selection(0)
        change_until_killed(program)
        changes += changes_of(program)
        assert without_state(stored(data)) == without_state(register)
        check = subprocess.run([program.path, "--data-dir", data, "--check"], capture_output=True, text=True,
                               encoding="utf-8", check=False)
        assert check.returncode == 0, check.stdout + check.stderr
    assert changes > kills, changes
    print(f"{kills} kills survived, {changes} changes stored")
    program = run()
    program.wait_for_lines([f"📦 Caricati {ITEMS} equipaggiamenti"])
    program.close()
