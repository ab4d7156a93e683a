# SPDX-License-Identifier: MIT
"""A desktop of its own for one journey: a virtual screen, a window manager and a session bus, all ended afterwards."""

import contextlib
import os
import subprocess


class Desktop(contextlib.AbstractContextManager):
    def __init__(self):
        self.processes = []

    def __enter__(self):
        reading, writing = os.pipe()
        screen = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        self.processes.append(screen)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        os.environ["DISPLAY"] = ":" + number
        os.environ.pop("WAYLAND_DISPLAY", None)
        self.processes.append(subprocess.Popen(["openbox", "--sm-disable"], stderr=subprocess.DEVNULL))
        return self

    def __exit__(self, *error):
        for process in reversed(self.processes):
            process.terminate()
        for process in self.processes:
            process.wait()
