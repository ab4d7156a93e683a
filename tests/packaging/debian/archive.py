# SPDX-License-Identifier: MIT
"""The source archive holds what a build needs and nothing else, and the same tree gives the same bytes again."""

import subprocess
import tarfile
import tempfile

from package import Package, judge, output

NEEDED = ["CMakeLists.txt", "CMakePresets.json", "LICENSE", "README.md", "debian/control", "src/main.cpp",
          "src/Resources/extracted/inputs.sha256", "src/Resources/extracted/symbols.qrc", "tests/CMakeLists.txt"]
FOREIGN = ("build/", "dist/", "node_modules", ".git/", ".cache/")


def complaints(package):
    root = f"abissora-{package.version}"
    with tarfile.open(package.archive) as tar:
        names = {member.name.removeprefix(root + "/"): member for member in tar if member.name != root}
    for name in NEEDED:
        if name not in names:
            yield f"{name} is not in the archive."
    for name, member in names.items():
        if name.startswith(FOREIGN):
            yield f"{name} does not belong into the archive."
        if (member.uid, member.gid) != (0, 0) or member.mode & 0o022:
            yield f"{name} carries the rights of who packed it."
    drawn = sum(name.startswith("src/Resources/extracted/") and name.endswith(".svg") for name in names)
    symbols = len((package.source / "src/Resources/symbols.tsv").read_text(encoding="utf-8").splitlines()) - 1
    if drawn != symbols:
        yield f"{drawn} of {symbols} symbols are in the archive."
    with tempfile.TemporaryDirectory() as folder:
        again = output(package.source / "scripts/source-archive", folder, "--working-tree", umask=0o077).strip()
        if subprocess.run(["cmp", package.archive, again], check=False).returncode != 0:
            yield "packed once more the archive has other bytes."


judge(complaints(Package()))
