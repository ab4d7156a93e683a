# SPDX-License-Identifier: MIT
"""The Debian package that is looked at, and a judgement that names everything that is wrong with it."""

import contextlib
import subprocess
import sys
import tempfile
from pathlib import Path


def output(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True, encoding="utf-8", **options).stdout


class Package:
    """What packaging/debian-build has left in the folder that is the script's first argument."""

    def __init__(self):
        self.dist, self.source, self.version = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3]
        self.deb = self._only("abissora_*.deb")
        self.symbols = self._only("abissora-dbgsym_*.deb")
        self.archive = self._only("abissora-*.tar.xz")

    def _only(self, pattern):
        found = list(self.dist.glob(pattern))
        assert len(found) == 1, f"{pattern} in {self.dist}: {found}, one file is expected."
        return found[0]

    def field(self, name):
        return output("dpkg-deb", "--field", self.deb, name).strip()

    @contextlib.contextmanager
    def unpacked(self, deb=None):
        """Gives the folder that stands for the root of a system on which the package is installed."""
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run(["dpkg-deb", "--extract", deb or self.deb, folder], check=True)
            yield Path(folder)


def judge(complaints):
    sys.exit("\n".join(complaints) or 0)
