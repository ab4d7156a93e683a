# SPDX-License-Identifier: MIT
"""Runs one journey: journey.py PROGRAM NAME. A journey is a function journey(run, data) in the module NAME; `run` starts
the program on the journey's own data folder, as often as it likes.

Every journey has a home, a screen and a session bus of its own, so that several can run at a time: the buses keep their
sockets in the runtime folder, which must be set before they start."""

import importlib
import os
import subprocess
import sys
import tempfile

from desktop import Desktop, NoDesktop, start_bus_of_readers

INSIDE = "--inside"


def travel(program_path, name):
    start_bus_of_readers()
    from program import Program
    data = os.path.join(os.environ["HOME"], "registro")
    os.mkdir(data)
    started = []

    def run(*arguments, **expected):
        started.append(Program(program_path, data, arguments, **expected))
        return started[-1]

    try:
        importlib.import_module(name).journey(run, data)
    except BaseException:
        for program in started:
            print("\n".join(program.lines[-60:]), file=sys.stderr)
        raise
    finally:
        for program in started:
            program.kill()


def main():
    if sys.argv[1] == INSIDE:
        travel(*sys.argv[2:])
        return 0
    with tempfile.TemporaryDirectory() as folder:
        os.environ["HOME"] = folder
        os.environ["XDG_RUNTIME_DIR"] = os.path.join(folder, "runtime")
        os.mkdir(os.environ["XDG_RUNTIME_DIR"], 0o700)
        for variable in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "DBUS_SESSION_BUS_ADDRESS",
                         "AT_SPI_BUS_ADDRESS"):
            os.environ.pop(variable, None)
        with Desktop():
            return subprocess.run(["dbus-run-session", "--", sys.executable, "-B", __file__, INSIDE, *sys.argv[1:]],
                                  check=False).returncode


try:
    sys.exit(main())
except NoDesktop as missing:
    sys.exit(f"There is no desktop for the journey, the program was not asked: {missing}.")
