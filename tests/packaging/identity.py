# SPDX-License-Identifier: MIT
"""identity.py --id ID --build FOLDER --source FOLDER: whatever a desktop looks the program up by has one name, and that
name is written down in one place."""

import argparse
import os
import re
import sys
from pathlib import Path

from installed import desktop_entry, installation, metainfo, only_file

WRITTEN_IN = Path("cmake/Product.cmake")
NOT_OURS = {"build", "dist", "node_modules", ".git", ".cache", "__pycache__"}  # and what packages are made in
FORMER_IDS = ("it." + "abissora",)  # in two pieces, or this file would name one


def installed_names(usr, name):
    share = usr / "share"
    entry, component = only_file(share / "applications"), only_file(share / "metainfo")
    group = desktop_entry(entry)["Desktop Entry"]
    read = metainfo(component)
    yield "the desktop entry's file", entry.name, f"{name}.desktop"
    yield "the entry's icon", group["Icon"], name
    yield "the entry's command", group["Exec"], only_file(usr / "bin").name
    yield "the component's file", component.name, f"{name}.metainfo.xml"
    yield "the component's id", read.findtext("id"), name
    yield "what the component starts", read.findtext("launchable"), entry.name
    yield "what the component provides", read.findtext("provides/binary"), only_file(usr / "bin").name
    icons = [icon for icon in (share / "icons").rglob("*") if icon.is_file()]
    yield "icons", bool(icons), True
    for icon in icons:
        suffix = "-symbolic" if "symbolic" in icon.parts else ""
        yield f"the icon in {icon.parent.relative_to(share)}", icon.stem, name + suffix


def sources(root):
    for folder, folders, names in os.walk(root):
        is_package = Path(folder) == root / "debian"
        folders[:] = [inner for inner in folders if not (inner in NOT_OURS or is_package or inner.startswith("obj-"))]
        yield from (Path(folder, name) for name in names if not Path(folder, name).is_symlink())


def places_of(texts, root):
    """Files that hold one of the texts as a word of its own."""
    pattern = re.compile(rb"(?<![\w.])(" + b"|".join(re.escape(text.encode()) for text in texts) + rb")(?!\w)")
    return {path.relative_to(root) for path in sources(root) if pattern.search(path.read_bytes())}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--id", required=True)
    parser.add_argument("--build", required=True)
    parser.add_argument("--source", required=True, type=Path)
    options = parser.parse_args()

    with installation(options.build) as usr:
        complaints = [f"{what} is {found!r} instead of {wanted!r}."
                      for what, found, wanted in installed_names(usr, options.id) if found != wanted]
    default = re.search(r'ABISSORA_APPLICATION_ID "([^"]+)"', (options.source / WRITTEN_IN).read_text())[1]
    places = places_of([default], options.source) - {WRITTEN_IN}
    for path in (place for place in places if place.suffix != ".md"):  # what people read may name it
        complaints.append(f"{path} writes {default} down; {WRITTEN_IN} alone does, others take ABISSORA_APPLICATION_ID.")
    for path in places_of(FORMER_IDS, options.source):
        complaints.append(f"{path} names an id that may be somebody else's.")
    return "\n".join(complaints) or 0


sys.exit(main())
