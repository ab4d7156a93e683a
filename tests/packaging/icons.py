# SPDX-License-Identifier: MIT
"""icons.py BUILD DRAWN: the icon theme has every drawn picture in the folder of its size, and the drawings that scale."""

import struct
import sys
from pathlib import Path

from installed import installation

SCALING = {"scalable", "symbolic"}
LEAST_SIDES = {16, 22, 24, 32, 48, 64, 128, 256, 512}
PNG_HEAD = b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR"


def size_of(png):
    head = png.read_bytes()[:len(PNG_HEAD) + 8]
    return struct.unpack(">II", head[len(PNG_HEAD):]) if head.startswith(PNG_HEAD) else None


def main():
    drawn = {path.stem.rpartition("-")[2]: path.read_bytes() for path in Path(sys.argv[2]).glob("*.png")}
    complaints = []
    with installation(sys.argv[1]) as usr:
        theme = usr / "share/icons/hicolor"
        wanted = SCALING | {f"{side}x{side}" for side in {*map(int, drawn), *LEAST_SIDES}}
        found = {folder.name for folder in theme.iterdir()}
        if found != wanted:
            complaints.append(f"the icon theme has {sorted(found)} instead of {sorted(wanted)}.")
        for png in theme.rglob("*.png"):
            folder = png.relative_to(theme).parts[0]
            side = folder.partition("x")[0]
            if size_of(png) != (int(side), int(side)):
                complaints.append(f"{folder} holds a picture of {size_of(png)} pixels.")
            if png.read_bytes() != drawn.get(side):
                complaints.append(f"{folder} holds another picture than the one drawn for it.")
    return "\n".join(complaints) or 0


sys.exit(main())
