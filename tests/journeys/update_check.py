# SPDX-License-Identifier: MIT
"""The check for updates against a server inside the journey: nobody is asked before the person wants it, then once a
start; whatever the server says, the program goes on."""

import http.server
import json
import os
import threading

from program import until

NEWER = {"version": "999.0", "build": 57, "downloadURL": "https://abissora.example/", "releaseNotes": "Novità"}


class Website(http.server.ThreadingHTTPServer):
    def __init__(self):
        super().__init__(("127.0.0.1", 0), Answering)
        self.asked = []
        self.answer = (200, b"")
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def says(self, status, manifest):
        self.answer = (status, json.dumps(manifest).encode())


class Answering(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        self.server.asked.append(self.path)
        status, body = self.server.answer
        self.send_response(status)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *arguments):
        pass


def want_check_at_start(data):
    with open(os.path.join(data, "preferences", "checkForUpdatesOnLaunch.json"), "w", encoding="utf-8") as file:
        file.write("true")


def journey(run, data):
    website = Website()
    os.environ["ABISSORA_JOURNEY_MANIFEST"] = f"http://127.0.0.1:{website.server_port}/version.json"

    program = run()
    program.wait_for_rows(["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"])
    program.close()
    assert website.asked == [], website.asked

    want_check_at_start(data)
    answers = [(200, NEWER), (200, dict(NEWER, version="0.0.1")), (200, {}), (500, NEWER)]
    for count, (status, manifest) in enumerate(answers, start=1):
        website.says(status, manifest)
        program = run()
        until("a request", lambda: len(website.asked) == count)
        program.select_in_sidebar("GAV")
        program.wait_for_rows(["GAV Scubapro Hydros"])
        program.close()
        assert website.asked == ["/version.json"] * count, website.asked
