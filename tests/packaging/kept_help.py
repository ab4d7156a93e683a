#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""kept_help.py PROGRAM FILE: the kept help, which ./run shows before anything is built, is what the program prints."""

import subprocess
import sys


def main(program, path):
    printed = subprocess.run([program, "--help"], check=True, capture_output=True).stdout
    with open(path, "rb") as file:
        if file.read() == printed:
            return 0
    return f"{path} is not what --help prints. Renew it:\n  {program} --help >{path}"


sys.exit(main(*sys.argv[1:]))
