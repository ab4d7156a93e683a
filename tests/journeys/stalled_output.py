# SPDX-License-Identifier: MIT
"""Whoever reads the program's output may stop reading: the program goes on, and the output follows when he reads again.
At its end the program does not wait for him for ever."""

import json
import os

from gi.repository import Atspi

from large_register import item

COUNT = 3000  # their log is several times what a pipe holds


def journey(run, data):
    items = [item(number) for number in range(COUNT)]
    os.mkdir(os.path.join(data, "preferences"))
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "w", encoding="utf-8") as file:
        json.dump(items, file, ensure_ascii=False)

    def search(**how):
        program = run(reads=False, **how)
        program.find(Atspi.Role.LABEL, f"{COUNT} articoli")
        program.key("ctrl+f")
        program.type("n. 2999")
        program.wait_for_rows([items[2999]["name"]])
        return program

    program = search()
    program.start_reading()
    program.wait_for_lines([f"📦 Caricati {COUNT} equipaggiamenti"] + [
        f"   📌 {record['name']}: type='{record['type']}', customType='nil'" for record in items])
    program.wait_for_lines(["   searchText: n. 2999"])
    program.close()

    search().close()

    # What the toolkit says goes the same way.
    search(shell='export QT_LOGGING_RULES="qt.accessibility.*=true"; exec "$0" "$@" 2>&1').close()
