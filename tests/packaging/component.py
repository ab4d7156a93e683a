# SPDX-License-Identifier: MIT
"""component.py --metainfo FILE --source FOLDER --website URL: what a software centre says of the program is true, and is
said in English and in Italian."""

import argparse
import re
import struct
import sys
from pathlib import Path

from installed import metainfo

LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
TRANSLATED = {"summary", "developer_name", "caption", "p", "li", "keyword"}


def untranslated(component):
    """Every text in English is followed by its own in Italian, except keywords, which are two lists."""
    for parent in component.iter():
        texts = [child for child in parent if child.tag in TRANSLATED]
        for tag in {child.tag for child in texts}:
            english = [child.text for child in texts if child.tag == tag and LANGUAGE not in child.attrib]
            italian = [child.text for child in texts if child.tag == tag and child.get(LANGUAGE) == "it"]
            if len(english) != len(italian) or set(english) & set(italian):
                yield f"<{tag}> in <{parent.tag}> has {len(english)} English and {len(italian)} Italian texts of its own."


def png_size(path):
    return struct.unpack(">II", path.read_bytes()[16:24]) if path.is_file() else None


def wrong_pictures(component, source, website):
    shots = component.findall("screenshots/screenshot")
    if not shots or shots[0].get("type") != "default" or "light" not in shots[0].findtext("image"):
        yield "the first screenshot is to be the default one, in the light scheme."
    for image in (shot.find("image") for shot in shots):
        folder, _, name = image.text.rpartition("/")
        stated = int(image.get("width")), int(image.get("height"))
        if folder != website + "images":
            yield f"{image.text} does not lie among the images of {website}."
        if png_size(source / "docs/images" / name) != stated:
            yield f"docs/images/{name} has {png_size(source / 'docs/images' / name)} pixels, {stated} are stated."


def wrong_figures(component, source):
    tokens = (source / "src/Views/Theme/Tokens/Tokens.cpp").read_text(encoding="utf-8")
    tints = re.findall(r'\.accentTint = rgb\("(#\w+)"\)', tokens)
    stated = [component.findtext(f"branding/color[@scheme_preference='{scheme}']") for scheme in ("light", "dark")]
    if stated != tints:
        yield f"the branding colours are {stated}, the schemes' tints {tints}."
    window = (source / "src/Views/Shell/MainWindow.cpp").read_text(encoding="utf-8")
    least = list(re.search(r"minimumWindowSize\((\d+), (\d+)\)", window).groups())
    stated = [component.findtext(f"requires/display_length[@side='{side}']") for side in ("longest", "shortest")]
    if stated != least:
        yield f"a screen of {stated} is required, the window needs {least}."


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--metainfo", required=True)
    parser.add_argument("--source", required=True, type=Path)
    parser.add_argument("--website", required=True)
    options = parser.parse_args()
    component = metainfo(options.metainfo)
    complaints = [*untranslated(component), *wrong_pictures(component, options.source, options.website),
                  *wrong_figures(component, options.source)]
    if component.findtext("url[@type='homepage']") != options.website:
        complaints.append(f"the homepage is not {options.website}.")
    return "\n".join(complaints) or 0


sys.exit(main())
