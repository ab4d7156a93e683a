# SPDX-License-Identifier: MIT
"""A desktop is whole when a journey begins, and a part that does not come is named."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import desktop
import patience

EXECUTABLE = 0o755


class StandIns:
    """Programs of those names, found before the real ones."""

    def __init__(self, **scripts):
        self.folder = tempfile.TemporaryDirectory()
        for name, script in scripts.items():
            program = Path(self.folder.name, name)
            program.write_text("#!/bin/sh\n" + script + "\n", encoding="utf-8")
            program.chmod(EXECUTABLE)

    def __enter__(self):
        self.environment = mock.patch.dict(os.environ, PATH=self.folder.name + os.pathsep + os.environ["PATH"])
        self.environment.start()

    def __exit__(self, *error):
        self.environment.stop()
        self.folder.cleanup()


def xprop(*arguments):
    return subprocess.run(["xprop", *arguments], capture_output=True, text=True, check=True).stdout


class Desktops(unittest.TestCase):
    def setUp(self):
        environment = mock.patch.dict(os.environ)
        environment.start()
        self.addCleanup(environment.stop)

    def test_is_whole_at_once(self):
        with desktop.Desktop():
            window = xprop("-root", "-notype", "_NET_SUPPORTING_WM_CHECK").split()[-1]
            self.assertIn("Openbox", xprop("-id", window, "_NET_WM_NAME"))

    def test_the_screen_outlives_its_clients(self):
        with desktop.Desktop() as whole:
            manager = whole.processes.pop()
            manager.kill()
            manager.wait()
            xprop("-root", "-format", "KEPT", "8s", "-set", "KEPT", "yes")
            self.assertIn('"yes"', xprop("-root", "KEPT"))

    def assert_missing(self, part):
        started = []
        start = subprocess.Popen
        with mock.patch.object(subprocess, "Popen", lambda *a, **o: started.append(start(*a, **o)) or started[-1]), \
                self.assertRaisesRegex(desktop.NoDesktop, part):
            with desktop.Desktop():
                self.fail("there is a desktop")
        self.assertTrue(all(process.poll() is not None for process in started), "a part goes on")

    def test_names_the_screen(self):
        with StandIns(Xvfb="exit 3"):
            self.assert_missing(r"the screen \(Xvfb\) ended with 3")

    def test_names_what_is_not_installed(self):
        with mock.patch.dict(os.environ, PATH=""):
            self.assert_missing("there is no Xvfb")

    def test_names_the_window_manager_that_ends(self):
        with StandIns(openbox="exit 4"):
            self.assert_missing(r"the window manager \(openbox\) ended with 4")

    def test_names_the_window_manager_that_does_not_come(self):
        with StandIns(openbox="exec tail -f /dev/null"), mock.patch.object(patience, "PATIENCE", 0.1):
            self.assert_missing(r"in vain for the window manager \(openbox\)")

    def test_a_manager_that_went_is_none(self):
        with desktop.Desktop() as whole:
            manager = whole.processes.pop()
            manager.kill()
            manager.wait()
            patience.until("the end of its window", lambda: not desktop._manager_of_windows())

    def test_names_the_session_bus(self):
        script = "import desktop; desktop.start_bus_of_readers()"
        nowhere = dict(os.environ, DBUS_SESSION_BUS_ADDRESS="unix:path=/nowhere")
        asked = subprocess.run([sys.executable, "-B", "-c", script], cwd=Path(__file__).parent, env=nowhere,
                               capture_output=True, text=True, check=False)
        self.assertIn("the session bus (dbus-run-session) did not come", asked.stderr)


if __name__ == "__main__":
    unittest.main()
