# SPDX-License-Identifier: MIT
"""A copy of the whole register from the command line while the program is open, and back from it, also after a kill."""

import os
import shutil
import signal
import subprocess

from going_back import FIRST, SECOND, THIRD, delete_first_row


def command(program, data, *arguments, **environment):
    return subprocess.run([program, "--data-dir", data, *arguments], capture_output=True, text=True, encoding="utf-8",
                          env=dict(os.environ, DISPLAY="", WAYLAND_DISPLAY="", **environment), check=False)


def content(folder):
    """Every file of a register, by its name."""
    return {os.path.relpath(os.path.join(at, name), folder): open(os.path.join(at, name), "rb").read()
            for at, _, names in os.walk(folder) for name in names}


def copy_while_open(run, data, copy):
    program = run()
    program.wait_for_rows([FIRST, SECOND, THIRD])
    delete_first_row(program)
    program.wait_for_rows([SECOND, THIRD])
    made = command(program.path, data, "--backup", copy)
    assert made.returncode == 0 and "2 articoli" in made.stdout, made.stderr
    inside = command(program.path, data, "--backup", os.path.join(data, "copia.zip"))
    assert inside.returncode == 73 and "cartella del registro" in inside.stderr, inside.stderr
    refused = command(program.path, data, "--restore", copy)
    assert refused.returncode == 75, refused.stderr
    path = program.path
    program.close()
    return path


def changed_byte(path, data, copy):
    changed = copy + ".changed.zip"
    with open(copy, "rb") as file:
        bytes_ = bytearray(file.read())
    bytes_[len(bytes_) // 3] ^= 1
    with open(changed, "wb") as file:
        file.write(bytes_)
    before = content(data)
    refused = command(path, data, "--restore", changed)
    assert refused.returncode == 65 and len(refused.stderr.splitlines()) == 1, (refused.returncode, refused.stderr)
    assert content(data) == before


def killed_in_the_middle(path, data, copy, library):
    """Wherever the restoration is killed, there is the old register or, once a command that writes has run, the new one."""
    with open(os.path.join(data, "preferences", "savedEquipment.json"), "rb") as file:
        new = file.read()
    seen = set()
    for step in range(4, 80, 4):
        folder = data + ".killed"
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(os.path.join(folder, "preferences"))
        register = os.path.join(folder, "preferences", "savedEquipment.json")
        with open(register, "w") as file:
            file.write("[]")
        killed = command(path, folder, "--restore", copy, LD_PRELOAD=library, ABISSORA_FAILING_CALLS_UNDER=folder,
                         ABISSORA_FAILING_CALLS=f"change@{step}=kill-before")
        if killed.returncode == 0:
            break
        assert killed.returncode == -signal.SIGKILL, killed.stderr
        # The next process that may write completes what was begun, whatever it was asked for.
        assert command(path, folder, "--restore", "none").returncode == 66
        with open(register, "rb") as file:
            now = file.read()
        assert now in (b"[]", new), f"after {step} changes"
        assert not os.path.exists(os.path.join(folder, "backups", "restoring"))
        seen.add(now)
    assert seen == {b"[]", new}, seen


def journey(run, data):
    copy = data + ".zip"
    path = copy_while_open(run, data, copy)
    changed_byte(path, data, copy)
    killed_in_the_middle(path, data, copy, os.environ["ABISSORA_FAILING_CALLS_LIBRARY"])

    shutil.rmtree(data)
    restored = command(path, data, "--restore", copy)
    assert restored.returncode == 0 and "2 articoli" in restored.stdout, restored.stderr
    program = run()
    program.wait_for_rows([SECOND, THIRD])
    program.close()
