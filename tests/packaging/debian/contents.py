# SPDX-License-Identifier: MIT
"""Everything of the package lies where the system looks for it, readable by everybody and owned by root."""

import gzip
import tarfile
import subprocess
from io import BytesIO

from package import Package, judge

NEEDED = [
    "usr/bin/abissora",
    "usr/share/doc/abissora/changelog.Debian.gz",
    "usr/share/doc/abissora/copyright",
    "usr/share/man/it/man1/abissora.1.gz",
    "usr/share/man/man1/abissora.1.gz",
]
SUFFIXES = {"usr/share/applications": ".desktop", "usr/share/metainfo": ".metainfo.xml",
            "usr/share/icons/hicolor/scalable/apps": ".svg", "usr/share/icons/hicolor/512x512/apps": ".png"}


def complaints(package):
    data = subprocess.run(["dpkg-deb", "--fsys-tarfile", package.deb], check=True, stdout=subprocess.PIPE).stdout
    with tarfile.open(fileobj=BytesIO(data)) as tar:
        members = {member.name.removeprefix("./").rstrip("/"): member for member in tar}
        for name in NEEDED:
            if name not in members:
                yield f"{name} is not in the package."
        for folder, suffix in SUFFIXES.items():
            if not any(name.startswith(folder + "/") and name.endswith(suffix) for name in members):
                yield f"nothing in {folder} ends in {suffix}."
        for name, member in members.items():
            wanted = 0o755 if member.isdir() or name.startswith("usr/bin/") else 0o644
            if member.mode != wanted or (member.uid, member.gid) != (0, 0):
                yield f"{name} has the mode {member.mode:04o} and the owner {member.uid}:{member.gid}."
            if not (member.isdir() or member.isfile()):
                yield f"{name} is neither a file nor a folder."
        for page in (name for name in members if name.startswith("usr/share/man/") and name.endswith(".gz")):
            if package.version not in gzip.decompress(tar.extractfile(members[page]).read()).decode():
                yield f"{page} is not about the version {package.version}."


judge(complaints(Package()))
