# SPDX-License-Identifier: MIT
"""The program and its manuals work where the package is unpacked, and leave nothing outside their register."""

import gzip
import os
import subprocess
import tempfile
from pathlib import Path

from package import Package, judge

PNG = b"\x89PNG\r\n\x1a\n"


def complaints(package):
    with package.unpacked() as system, tempfile.TemporaryDirectory() as home:
        environment = {"HOME": home, "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen",
                       "XDG_RUNTIME_DIR": home}
        program = system / "usr/bin/abissora"

        def run(*arguments):
            return subprocess.run([program, *arguments], env=environment, stdin=subprocess.DEVNULL, text=True,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE, encoding="utf-8", check=False)

        version = run("--version")
        if version.returncode != 0 or f"Abissora {package.version}" not in version.stdout:
            yield f"--version says {version}."
        picture = Path(home, "window.png")
        drawn = run("--data-dir", str(Path(home, "register")), "--snapshot", str(picture))
        if drawn.returncode != 0 or not picture.exists() or not picture.read_bytes().startswith(PNG):
            yield f"--snapshot says {drawn}."
        if left := [path.name for path in Path(home).iterdir() if path.name not in {"register", "window.png"}]:
            yield f"the program has left {left} in the home of who started it."
        for page in system.glob("usr/share/man/**/abissora.1.gz"):
            text = gzip.decompress(page.read_bytes())
            shown = subprocess.run(["groff", "-man", "-ww", "-K", "utf8", "-T", "utf8"], input=text, check=False,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
            if shown.stderr or b"ABISSORA(1)" not in shown.stdout:
                yield f"{page.relative_to(system)}: {shown.stderr.decode()}"


judge(complaints(Package()))
