#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""without_updates.py SOURCE FOLDER: with ABISSORA_UPDATE_CHECK=OFF the project is configured where no client for the
network is installed, nothing of one is compiled, and the manuals say so."""

import shutil
import subprocess
import sys
from pathlib import Path

CLIENT = ["CurlLibrary.cpp", "HttpTransfer.cpp", "NetworkHttpClient.cpp", "NetworkUpdates.cpp", "src/main.cpp",
          "version.json", "libcurl"]


def main(source, folder):
    shutil.rmtree(folder, ignore_errors=True)
    process = subprocess.run(
        ["cmake", "-S", source, "-B", folder, "-G", "Ninja", "-DABISSORA_UPDATE_CHECK=OFF", "-DABISSORA_TESTS=OFF",
         "-DABISSORA_DEVELOPMENT_PROGRAMS=OFF", "-DCMAKE_DISABLE_FIND_PACKAGE_CURL=ON"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if process.returncode != 0:
        return process.stdout
    rules = Path(folder, "build.ninja").read_text(encoding="utf-8")
    if "main_without_updates.cpp" not in rules:
        return "The program is not the one without updates."
    if found := [text for text in CLIENT if text in rules]:
        return f"It would still be built with {', '.join(found)}."
    for manual in Path(folder, "packaging").rglob("abissora.1"):
        if ".ie 0 " not in manual.read_text(encoding="utf-8"):
            return f"{manual} speaks of a check for updates."
    return 0


sys.exit(main(*sys.argv[1:]))
