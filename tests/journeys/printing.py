# SPDX-License-Identifier: MIT
"""Sheets and lists as PDF from the command line: without a screen, and while the program is open. The texts are read
back by another program."""

import json
import os
import re
import subprocess

ITEMS = {"Erogatore Apeks XTX50": 19, "Pinne": 1, "Torcia principale": 500, "Maschera": 0}
ORDINARY_END, NO_INPUT, CANNOT_CREATE = 0, 66, 73


def identifier(group, n):
    return f"00000000-0000-4000-{group}-{n:012d}"


def record(item, n):
    return {"id": identifier("9000", 1000 * item + n), "date": f"{2026 - n // 300:04d}-{1 + n % 12:02d}-14T09:26:53Z",
            "type": "Riparazione", "description": f"Intervento numero {n:03d}", "performedBy": "Officina Blu",
            "cost": 10.5 if n % 2 else 0, "notes": "Tutto in ordine" if n == 0 else "",
            "nextServiceDate": "2027-03-14T09:26:53Z"}


def register():
    return [{"id": identifier("8000", at), "name": name, "type": "GAV", "brand": "Apeks", "model": "XTX50",
             "serialNumber": f"AX50-{118274 + at}", "purchaseDate": "2024-01-02T03:04:05Z",
             "lastServiceDate": "2025-03-14T09:26:53Z", "nextServiceDate": "2087-03-14T09:26:53Z", "notes": "",
             "isActive": True, "maintenanceHistory": [record(at, n) for n in range(records)]}
            for at, (name, records) in enumerate(ITEMS.items())]


def printed(path, data, file, *arguments, expected=ORDINARY_END):
    environment = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
    environment.update(LC_ALL="C.UTF-8", TZ="Europe/Rome")
    done = subprocess.run([path, "--data-dir", data, "--print", file, *arguments], capture_output=True, text=True,
                          encoding="utf-8", env=environment, check=False)
    assert done.returncode == expected, (done.returncode, done.stderr)
    return done.stderr


def read(file):
    """The pages' texts."""
    text = subprocess.run(["pdftotext", "-layout", file, "-"], capture_output=True, text=True, encoding="utf-8",
                          check=True).stdout
    return text.split("\f")[:-1]


def properties(file):
    text = subprocess.run(["pdfinfo", file], capture_output=True, text=True, encoding="utf-8", check=True).stdout
    return dict(re.findall(r"^([^:]+):\s*(.*)$", text, re.MULTILINE))


def check_sheet(path, data, file, name, records, serial):
    assert printed(path, data, file, "--item", name) == ""
    pages = read(file)
    facts = properties(file)
    assert facts["Title"] == name and facts["Creator"] == "Abissora" and "(A4)" in facts["Page size"], facts
    assert int(facts["Pages"]) == len(pages), facts
    for number, page in enumerate(pages, 1):
        assert f"{name} · {serial}" in page, page
        assert f"Pagina {number} di {len(pages)} · Stampato il " in page and page.rstrip().endswith("con Abissora"), page
        assert (f"continua a pagina {number + 1}" in page) == (number < len(pages)), page
        assert ("Eseguito da" in page) == (records > 0), page
    found = re.findall(r"Intervento numero (\d{3})", "".join(pages))
    assert sorted(found) == [f"{n:03d}" for n in range(records)], found
    if records == 0:
        assert "Nessuna manutenzione registrata" in pages[0]
    else:
        total = 10.5 * (records // 2)
        what = "1 manutenzione" if records == 1 else f"{records} manutenzioni"
        amount = f"€{total:.2f}" if total else "—"
        assert re.search(f"Costo totale di {what} +{amount}", pages[-1]), pages[-1]
        assert "Note: Tutto in ordine" in "".join(pages)


def journey(run, data):
    home = os.environ["HOME"]
    file = os.path.join(home, "carta.pdf")
    program = run()
    path = program.path
    program.close()
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "w", encoding="utf-8") as stored:
        json.dump(register(), stored)

    program = run()
    program.wait_for_rows(list(ITEMS))
    for at, (name, records) in enumerate(ITEMS.items()):
        check_sheet(path, data, file, name, records, f"AX50-{118274 + at}")
    program.close()

    assert printed(path, data, file) == ""
    text = "".join(read(file))
    assert all(name in text for name in ITEMS) and "4 articoli" in text and "Pagina 1 di 1" in text, text
    fonts = subprocess.run(["pdffonts", file], capture_output=True, text=True, check=True).stdout.splitlines()[2:]
    assert fonts and all(re.search(r" yes (yes|no) +yes ", line) for line in fonts), fonts

    os.remove(file)
    assert "Nessun articolo si chiama «Nessuno»." in printed(path, data, file, "--item", "Nessuno", expected=NO_INPUT)
    assert not os.path.exists(file)
    refused = printed(path, data, os.path.join(home, "manca", "a.pdf"), expected=CANNOT_CREATE)
    assert refused.startswith("Non è stato possibile scrivere «") and refused.count("\n") == 1, refused
