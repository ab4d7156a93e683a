# SPDX-License-Identifier: MIT
"""understood.py MANIFEST: names everything of a Flatpak manifest that its reader, whose account of it comes in as JSON,
left out or took otherwise."""

import json
import sys
from pathlib import Path

import yaml


def lost(written, read, place):
    if isinstance(written, dict) and isinstance(read, dict):
        for key, value in written.items():
            if key not in read:
                yield f"{place}/{key} was not read."
            else:
                yield from lost(value, read[key], f"{place}/{key}")
    elif isinstance(written, list) and isinstance(read, list) and len(written) == len(read):
        for number, (one, other) in enumerate(zip(written, read)):
            yield from lost(one, other, f"{place}/{number}")
    elif written != read:
        yield f"{place} is {written!r}, {read!r} was read."


manifest = yaml.safe_load(Path(sys.argv[1]).read_text(encoding="utf-8"))
sys.exit("\n".join(lost(manifest, json.load(sys.stdin), "")) or 0)
