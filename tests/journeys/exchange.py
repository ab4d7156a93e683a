# SPDX-License-Identifier: MIT
"""Data go out of the register while the program is open, and come in when it is closed: tables, a calendar that another
library reads, the whole register, what is due."""

import json
import os
import subprocess
from datetime import date, datetime, timedelta
from zoneinfo import ZoneInfo

from icalendar import Calendar

from program import PATIENCE, ZONE

LONG = "Erogatore, primo e secondo stadio; con frusta lunga 🤿 " * 12
TEXTS = ["GAV, blu; taglia M", "Muta\ncon \"cappuccio\"\\", LONG.strip(), "=1+1", "👩🏽‍🚀 è così"]


def identifier(number):
    return f"00000000-0000-4000-8000-{number:012}"


def today():
    return datetime.now(ZoneInfo(ZONE)).date()


def end_of(day):
    """Whole days are counted from the present moment: at whatever time this runs, the day's last second is as many away
    as the day itself."""
    local = datetime(day.year, day.month, day.day, 23, 59, 59, tzinfo=ZoneInfo(ZONE))
    return local.astimezone(ZoneInfo("UTC")).strftime("%Y-%m-%dT%H:%M:%SZ")


def item(number, name, due_in, active=True):
    return {"id": identifier(number), "name": name, "type": "GAV", "brand": "Marca, blu", "model": "Modello; 1",
            "serialNumber": f"SN-{number}", "purchaseDate": "2020-01-01T11:00:00Z",
            "lastServiceDate": "2024-01-01T11:00:00Z", "nextServiceDate": end_of(today() + timedelta(days=due_in)),
            "notes": "", "isActive": active, "maintenanceHistory": []}


def stored(data):
    with open(os.path.join(data, "preferences", "savedEquipment.json"), encoding="utf-8") as file:
        return json.load(file)


def store(data, items):
    os.makedirs(os.path.join(data, "preferences"), exist_ok=True)
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "w", encoding="utf-8") as file:
        json.dump(items, file)


class Commands:
    """Without a display."""

    def __init__(self, program, data):
        self.program = program
        self.data = data

    def __call__(self, *arguments, status, data=None):
        environment = dict(os.environ, TZ=ZONE, LC_ALL="C.UTF-8")
        for variable in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"):
            environment.pop(variable, None)
        done = subprocess.run([self.program, "--data-dir", data or self.data, *arguments], capture_output=True,
                              text=True, encoding="utf-8", env=environment, timeout=PATIENCE, check=False)
        assert done.returncode == status, (arguments, done)
        assert (done.stderr == "") == (status in (0, 1)), done
        return done.stderr or done.stdout


def events(path):
    with open(path, "rb") as file:
        content = file.read()
    assert all(len(line) <= 75 for line in content.split(b"\r\n")), "a line is too long"
    return {str(event["UID"]): event for event in Calendar.from_ical(content).walk("VEVENT")}


def check_calendar(path, again):
    found = events(path)
    assert set(found) == set(events(again)) and len(found) == len(TEXTS), found
    for number, text in enumerate(TEXTS):
        event = found[f"tagliando-{identifier(number + 1)}@abissora.example"]
        day = today() + timedelta(days=10 * number)
        assert event["SUMMARY"] == "Tagliando: " + text, event["SUMMARY"]
        assert event["DESCRIPTION"] == f"Marca, blu Modello; 1\nNumero Seriale: SN-{number + 1}", event["DESCRIPTION"]
        assert type(event["DTSTART"].dt) is date and event["DTSTART"].dt == day, event["DTSTART"]
        assert event["DTEND"].dt == day + timedelta(days=1), event["DTEND"]
        assert not event.walk("VALARM")


def check_due(command):
    lines = command("--due", "0", status=1).splitlines()
    assert len(lines) == 1 and lines[0].split("\t")[1:] == ["0 giorni", TEXTS[0] + " (Marca, blu Modello; 1)"], lines
    due = json.loads(command("--due", "--json", status=1))
    assert [entry["name"] for entry in due] == TEXTS[:4], due
    assert due[1]["nextServiceDate"] == (today() + timedelta(days=10)).isoformat() and due[1]["days"] == 10, due
    assert len(command("--due", "365", status=1).splitlines()) == len(TEXTS)
    command("--due", "domani", status=64)


def journey(run, data):
    folder = os.path.dirname(data)
    begun = today()
    store(data, [item(number + 1, text, 10 * number) for number, text in enumerate(TEXTS)]
          + [item(99, "Dismesso", 5, active=False)])
    program = run()
    command = Commands(program.path, data)
    before = stored(data)

    calendar, again, table, register = (os.path.join(folder, name) for name in ("a.ics", "b.ics", "a.csv", "a.json"))
    assert command("--export", calendar, status=0) == "Esportati 5 articoli.\n"
    command("--export", again, status=0)
    assert command("--export", table, status=0) == "Esportati 6 articoli.\n"
    assert command("--export", register, status=0) == "Esportati 6 articoli.\n"
    command("--export", os.path.join(folder, "a.txt"), status=64)
    command("--export", os.path.join(folder, "none", "a.csv"), status=73)
    check_calendar(calendar, again)
    check_due(command)

    # What the table says is there already; in a new register it is all new.
    assert "6 righe: 0 nuove, 6 già presenti" in command("--import", table, status=0)
    other = os.path.join(folder, "altro")
    assert "6 righe: 6 nuove" in command("--import", table, status=0, data=other)
    assert not os.path.exists(other)
    assert command("--import", table, "--yes", status=0, data=other) == "Importati 6 articoli.\n"
    assert [entry["name"] for entry in stored(other)] == [entry["name"] for entry in before]
    third = os.path.join(folder, "terzo")
    assert command("--import", register, "--yes", status=0, data=third) == "Importati 6 articoli.\n"
    assert stored(third) == before

    more = os.path.join(folder, "altri.csv")
    with open(more, "w", encoding="cp1252") as file:
        file.write("Nome;Marca;Ultimo tagliando\nPinne più;Città;1/3/2026\n")
    assert "1 riga: 1 nuova" in command("--import", more, status=0)
    assert "è aperta su questo registro" in command("--import", more, "--yes", status=75)
    assert stored(data) == before
    program.close()

    command("--import", os.path.join(folder, "none.csv"), "--yes", status=66)
    command("--import", calendar, "--yes", status=65)
    assert stored(data) == before
    assert command("--import", more, "--yes", status=0) == "Importato 1 articolo.\n"
    assert stored(data)[:-1] == before and stored(data)[-1]["name"] == "Pinne più", stored(data)[-1]
    assert "-import\t" in command("--list-states", status=0)
    command("--check", status=0)
    program = run()
    program.wait_for_lines(["📦 Caricati 7 equipaggiamenti"])
    program.close()
    assert today() == begun, "midnight passed meanwhile"
