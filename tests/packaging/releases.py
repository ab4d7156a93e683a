# SPDX-License-Identifier: MIT
"""releases.py --metainfo FILE --source FOLDER --version VERSION: whatever tells of releases tells of the same ones, on the
same days, and the newest is the version that is built."""

import argparse
import email.utils
import re
import sys
from pathlib import Path

from installed import metainfo

HEADING = re.compile(r"^## (\d\S*) - (\d{4}-\d\d-\d\d)$", re.MULTILINE)


def changelog_releases(source):
    return HEADING.findall((source / "CHANGELOG.md").read_text(encoding="utf-8"))


def component_releases(component):
    return [(release.get("version"), release.get("date")) for release in component.findall("releases/release")]


def debian_release(source):
    """The newest: its version without that of the package, and its day. None where there is no such package."""
    path = source / "debian/changelog"
    if not path.exists():
        return None
    entry = path.read_text(encoding="utf-8").split("\n\n -- ", 1)
    version = re.match(r"\S+ \((?:\d+:)?([^()]*?)(?:-[^-()]*)?\)", entry[0])[1]
    stamp = re.match(r"[^\n]*>  ([^\n]+)", entry[1])[1]
    return version, email.utils.parsedate_to_datetime(stamp).date().isoformat()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--metainfo", required=True)
    parser.add_argument("--source", required=True, type=Path)
    parser.add_argument("--version", required=True)
    options = parser.parse_args()
    told = changelog_releases(options.source)
    component = metainfo(options.metainfo)
    packaged = debian_release(options.source)
    complaints = []
    if not told or told[0][0] != options.version:
        complaints.append(f"CHANGELOG.md begins with {told[:1]}, {options.version} is built.")
    if component_releases(component) != told:
        complaints.append(f"the metainfo tells of {component_releases(component)}, CHANGELOG.md of {told}.")
    if packaged and told and packaged != told[0]:
        complaints.append(f"debian/changelog begins with {packaged}, CHANGELOG.md with {told[0]}.")
    for release in component.findall("releases/release"):
        if release.find("description") is None:
            complaints.append(f"the metainfo does not say what {release.get('version')} brings.")
    return "\n".join(complaints) or 0


sys.exit(main())
