# SPDX-License-Identifier: MIT
"""Stores that cannot be read: the samples and the default types appear, and the unreadable bytes are kept."""

import os


def journey(run, data):
    preferences = os.path.join(data, "preferences")
    os.mkdir(preferences)
    broken = {"savedEquipment": b'[{"id": "not an id"}]', "equipmentTypes": b"\xff\xfe rubbish"}
    for key, content in broken.items():
        with open(os.path.join(preferences, key + ".json"), "wb") as file:
            file.write(content)

    program = run()
    program.wait_for_lines(["📦 Caricati 3 equipaggiamenti"])
    assert program.lines[0].startswith("Error loading equipment: [0].id: "), program.lines[0]
    assert any(line.startswith("Error loading types: ") for line in program.lines)
    program.close()

    states = os.listdir(os.path.join(data, "backups"))
    assert len(states) == 1 and states[0].endswith("-unreadable"), states
    kept = {}
    for name in os.listdir(os.path.join(data, "backups", states[0])):
        with open(os.path.join(data, "backups", states[0], name), "rb") as file:
            kept[name.split(".")[0]] = file.read()
    assert kept == broken, kept

    # A second start finds the same bytes kept already, and the types readable.
    program = run()
    program.wait_for_lines(["📦 Caricati 3 equipaggiamenti"])
    assert not any(line.startswith("Error loading types: ") for line in program.lines)
    program.close()
    assert len([name for name in os.listdir(os.path.join(data, "backups")) if name.endswith("-unreadable")]) == 1
