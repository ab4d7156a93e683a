# SPDX-License-Identifier: MIT
"""Every setting changed, stored at once and found again after a restart; then all of them reset without a question."""

import json
import os

from gi.repository import Atspi

from program import until

DEFAULTS = {"notificationsEnabled": True, "reminderDays": 30, "defaultServiceInterval": 365, "currencySymbol": "€",
            "darkMode": False, "checkForUpdatesOnLaunch": False}
CHANGED = {"notificationsEnabled": False, "reminderDays": 37, "defaultServiceInterval": 730, "currencySymbol": "CHF",
           "darkMode": True, "checkForUpdatesOnLaunch": True}
SWITCHES = {"Abilita Notifiche": "notificationsEnabled", "Modalità Scura": "darkMode",
            "Controlla aggiornamenti all'avvio": "checkForUpdatesOnLaunch"}


def stored(data):
    found = {}
    for key in DEFAULTS:
        path = os.path.join(data, "preferences", key + ".json")
        if os.path.exists(path):
            with open(path, encoding="utf-8") as file:
                found[key] = json.load(file)
    return found


def is_on(node):
    return node.get_state_set().contains(Atspi.StateType.CHECKED)


def wait_for_stored(data, expected):
    until(f"the stored settings {expected}", lambda: stored(data) == expected)


def focus(node):
    assert node.get_component_iface().grab_focus()
    until("the focus", lambda: node.get_state_set().contains(Atspi.StateType.FOCUSED))


def chosen_interval(program):
    return [node.get_name() for node in program.all(Atspi.Role.RADIO_BUTTON)
            if node.get_name() in ("6 Mesi", "1 Anno", "2 Anni") and is_on(node)]


def wait_for_shown(program, expected):
    interval = {180: ["6 Mesi"], 365: ["1 Anno"], 730: ["2 Anni"]}[expected["defaultServiceInterval"]]

    def look():
        switches = all(is_on(program.find(Atspi.Role.CHECK_BOX, name)) == expected[key]
                       for name, key in SWITCHES.items())
        days = program.find(Atspi.Role.SPIN_BUTTON, "Giorni di anticipo").get_value_iface().get_current_value()
        currency = program.find(Atspi.Role.TEXT, "Simbolo Valuta").get_text_iface()
        symbol = currency.get_text(0, currency.get_character_count())
        return (switches and days == expected["reminderDays"] and symbol == expected["currencySymbol"]
                and chosen_interval(program) == interval)
    until(f"the settings to show {expected}", look)


def journey(run, data):
    program = run()
    program.select_in_sidebar("Impostazioni")
    program.find(Atspi.Role.LABEL, "Configura la tua esperienza")
    wait_for_shown(program, DEFAULTS)
    assert stored(data) == {}, "nothing is stored before something is changed"

    program.press(program.find(Atspi.Role.CHECK_BOX, "Abilita Notifiche"))
    wait_for_stored(data, {"notificationsEnabled": False})
    focus(program.find(Atspi.Role.SPIN_BUTTON, "Giorni di anticipo"))
    program.key("Down")
    wait_for_stored(data, {"notificationsEnabled": False, "reminderDays": 23})
    program.key("Up", "Up")
    program.press(program.find(Atspi.Role.RADIO_BUTTON, "2 Anni"))
    focus(program.find(Atspi.Role.TEXT, "Simbolo Valuta"))
    program.key("ctrl+a")
    program.type("CHF")
    program.press(program.find(Atspi.Role.CHECK_BOX, "Modalità Scura"))
    program.press(program.find(Atspi.Role.CHECK_BOX, "Controlla aggiornamenti all'avvio"))
    wait_for_stored(data, CHANGED)
    program.close()

    # The check at start finds nobody at the reserved address, and says nothing about it.
    program = run()
    program.select_in_sidebar("Impostazioni")
    wait_for_shown(program, CHANGED)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Ripristina Impostazioni Default"))
    wait_for_stored(data, DEFAULTS)
    wait_for_shown(program, DEFAULTS)
    program.close()
