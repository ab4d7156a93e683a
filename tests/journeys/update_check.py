# SPDX-License-Identifier: MIT
"""The check for updates against a server inside the journey: nobody is asked before the person wants it, then once a
start; whatever the server says, the program goes on."""

import http.server
import json
import os
import threading

from gi.repository import Atspi

from program import until

NEWER = {"version": "999.0", "build": 57, "downloadURL": "https://abissora.example/",
         "releaseNotes": "<b>Novità</b>\nRiga due"}
OLDER = dict(NEWER, version="0.0.1")


class Website(http.server.ThreadingHTTPServer):
    def __init__(self):
        super().__init__(("127.0.0.1", 0), Answering)
        self.asked = []
        self.answer = (200, b"")
        self.may_answer = threading.Event()
        self.may_answer.set()
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def says(self, status, manifest):
        self.answer = (status, json.dumps(manifest).encode())


class Answering(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.server.asked.append(self.path)
        self.server.may_answer.wait()
        status, body = self.server.answer
        self.send_response(status)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *arguments):
        pass


def journey(run, data):
    website = Website()
    os.environ["ABISSORA_JOURNEY_MANIFEST"] = f"http://127.0.0.1:{website.server_port}/version.json"

    def asked(times):
        until(f"{times} requests", lambda: len(website.asked) == times)

    # Nobody is asked; then the person asks, by hand, and wants it at every start.
    program = run()
    program.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])
    program.select_in_sidebar("Impostazioni")
    check = program.find(Atspi.Role.PUSH_BUTTON, "Controlla aggiornamenti ora")
    assert website.asked == [], website.asked
    website.says(500, NEWER)
    program.press(check)
    program.find(Atspi.Role.LABEL, "Il server non ha risposto correttamente.")
    website.says(200, OLDER)
    program.press(program.find(Atspi.Role.PUSH_BUTTON, "Controlla aggiornamenti ora"))
    program.find(Atspi.Role.LABEL, "Hai già l'ultima versione")
    asked(2)
    program.find(Atspi.Role.CHECK_BOX, "Controlla aggiornamenti all'avvio").get_component_iface().grab_focus()
    program.key("space")
    setting = os.path.join(data, "preferences", "checkForUpdatesOnLaunch.json")
    until("the stored setting", lambda: os.path.exists(setting))
    program.close()

    # The next start offers what it finds, and says nothing of what it does not.
    website.says(200, NEWER)
    program = run()
    program.find_anywhere(Atspi.Role.LABEL, "Nuova versione · 999.0 (build 57)")
    notes = program.find_anywhere(Atspi.Role.TEXT, "Novità in questa versione").get_text_iface()
    assert notes.get_text(0, notes.get_character_count()) == NEWER["releaseNotes"]
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "Più tardi"))
    until("the main window alone", lambda: len(program.windows()) == 1)
    asked(3)
    program.close()

    # An offer takes nothing from whoever is typing.
    website.may_answer.clear()
    program = run()
    asked(4)
    program.key("ctrl+f")
    program.type("gav ")
    website.may_answer.set()
    program.find_anywhere(Atspi.Role.LABEL, "Nuova versione · 999.0 (build 57)")
    program.type("scubapro h")
    program.key("Return")
    program.wait_for_lines(["   searchText: gav scubapro h"])
    assert program.window.get_state_set().contains(Atspi.StateType.ACTIVE)
    assert len(program.windows()) == 2
    # Whoever wants it takes it.
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "Più tardi"))
    until("the main window alone", lambda: len(program.windows()) == 1)
    program.close()

    # It waits for the end of a form.
    website.may_answer.clear()
    program = run()
    asked(5)
    program.key("ctrl+n")
    field = program.find_anywhere(Atspi.Role.TEXT, "Nome*")
    until("the focus in the form", lambda: field.get_state_set().contains(Atspi.StateType.FOCUSED))
    program.type("Torcia di ")
    website.may_answer.set()
    program.type("riserva")
    name = field.get_text_iface()
    until("the whole name", lambda: name.get_text(0, name.get_character_count()) == "Torcia di riserva")
    assert len(program.windows()) == 2
    program.key("ctrl+a", "BackSpace", "Escape")
    program.find_anywhere(Atspi.Role.LABEL, "Nuova versione · 999.0 (build 57)")
    program.press(program.find_anywhere(Atspi.Role.PUSH_BUTTON, "Più tardi"))
    until("the main window alone", lambda: len(program.windows()) == 1)
    program.close()

    for count, (status, manifest) in enumerate([(200, OLDER), (200, {}), (500, NEWER)], start=6):
        website.says(status, manifest)
        program = run()
        asked(count)
        program.select_in_sidebar("GAV")
        program.wait_for_rows(["GAV Scubapro Hydros"])
        assert len(program.windows()) == 1
        program.close()
        assert website.asked == ["/version.json"] * count, website.asked

    # A name that nobody answers for keeps nobody waiting at the end.
    os.environ["ABISSORA_JOURNEY_MANIFEST"] = "http://abissora.example/version.json"
    os.environ["ABISSORA_JOURNEY_NO_NAMES"] = "1"
    program = run()
    program.wait_for_lines(["looking a name up"])
    program.close()
