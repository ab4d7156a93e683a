# SPDX-License-Identifier: MIT
"""Runs one journey: journey.py PROGRAM NAME, inside dbus-run-session. A journey is a function journey(run) in the module
NAME; `run` starts the program on the journey's own data folder, as often as it likes."""

import importlib
import os
import sys
import tempfile

from desktop import Desktop


def main():
    program_path, name = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder, Desktop():
        os.environ["XDG_RUNTIME_DIR"] = os.path.join(folder, "runtime")
        os.mkdir(os.environ["XDG_RUNTIME_DIR"], 0o700)
        os.environ["HOME"] = folder
        from program import Program
        data = os.path.join(folder, "registro")
        os.mkdir(data)
        started = []

        def run(*arguments):
            started.append(Program(program_path, data, arguments))
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


main()
