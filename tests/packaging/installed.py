# SPDX-License-Identifier: MIT
"""An installation of the program in a folder of its own, made the way a person with a strict umask makes it."""

import configparser
import contextlib
import os
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

STRICT_UMASK = 0o077


@contextlib.contextmanager
def installation(build, prepare=lambda usr: None):
    """Gives the folder that stands for /usr; `prepare` gets it beforehand, when it is not there yet."""
    with tempfile.TemporaryDirectory() as folder:
        prepare(Path(folder, "usr"))
        subprocess.run(["cmake", "--install", build, "--prefix", "/usr", "--component", "Unspecified"],
                       env=dict(os.environ, DESTDIR=folder), umask=STRICT_UMASK, stdout=subprocess.DEVNULL, check=True)
        yield Path(folder, "usr")


def desktop_entry(path):
    """The groups of a desktop entry, each a mapping; keys keep their case and their [language]."""
    entry = configparser.RawConfigParser(delimiters="=", comment_prefixes="#", strict=True)
    entry.optionxform = str
    entry.read_string(Path(path).read_text(encoding="utf-8"))
    return entry


def metainfo(path):
    return ElementTree.parse(path).getroot()


def only_file(folder):
    """The one file that a folder holds."""
    files = list(Path(folder).iterdir())
    assert len(files) == 1, f"{folder} holds {[file.name for file in files]}, one file is expected."
    return files[0]
