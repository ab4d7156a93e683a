# SPDX-License-Identifier: MIT
"""copyright.py SOURCE: debian/copyright names set, licence and, where the licence asks for it, the author of every symbol
that the program shows."""

import re
import sys
from pathlib import Path

source = Path(sys.argv[1])
LICENCES = {"MIT": "Expat", "ISC": "ISC and Expat"}
FOLDER = "src/Resources/extracted/"


def paragraphs():
    for text in re.split(r"\n\n+", (source / "debian/copyright").read_text(encoding="utf-8")):
        fields = re.findall(r"^([A-Z][\w-]*):[ ]?((?:.*)(?:\n[ ].*)*)", text, re.MULTILINE)
        yield {name: value.strip() for name, value in fields}


def complaints():
    all_paragraphs = list(paragraphs())
    by_file = {}
    for paragraph in all_paragraphs:
        for file in paragraph.get("Files", "").split():
            if file in by_file:
                yield f"{file} stands in two paragraphs."
            by_file[file] = paragraph
    texts = {paragraph["License"].split("\n")[0] for paragraph in all_paragraphs
             if "License" in paragraph and "Files" not in paragraph}
    rows = [line.split("\t") for line in (source / "src/Resources/symbols.tsv").read_text(encoding="utf-8").splitlines()]
    for symbol, picture, licence in rows[1:]:
        paragraph = by_file.pop(f"{FOLDER}{symbol}.svg", by_file["*"])
        found = paragraph["License"].split("\n")[0]
        if found != LICENCES.get(licence, licence):
            yield f"{symbol} is under {licence}, debian/copyright says {found}."
        if any(name not in texts for name in found.split(" and ")):
            yield f"debian/copyright has no text of {found}."
        icon = picture.split(":")[-1]
        if licence.startswith("CC-BY") and f"/{paragraph['Copyright'].lower()}/{icon}.html" not in paragraph["Comment"]:
            yield f"{symbol} is to name the author of {icon} and where it was published."
    for file in by_file:
        if file != "*":
            yield f"{file} stands in debian/copyright, but no symbol is called so."


sys.exit("\n".join(complaints()) or 0)
