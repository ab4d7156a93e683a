# SPDX-License-Identifier: MIT
"""lint.py --root TREE [--qt-core FOLDER...] [--qt-gui FOLDER...] [--qt-network FOLDER...] RULE: checks one rule, prints what breaks it."""

import argparse
import sys
from pathlib import Path

import layers
import style  # noqa: F401, registers its rules
from rule import RULES
from tree import Tree


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("rule", choices=sorted(RULES))
    parser.add_argument("--root", required=True, type=Path)
    parser.add_argument("--qt-core", nargs="+", default=[], type=Path)
    parser.add_argument("--qt-gui", nargs="+", default=[], type=Path)
    parser.add_argument("--qt-network", nargs="+", default=[], type=Path)
    options = parser.parse_args()
    layers.QT_HEADERS.update(QtCore=options.qt_core, QtGui=options.qt_gui, QtNetwork=options.qt_network)

    rule, tree = RULES[options.rule], Tree(options.root)
    if not rule.sources(tree):
        return f"{rule.name}: no file under {options.root} that the rule is about."
    if findings := rule.findings(tree):
        return "\n".join([*map(str, findings), "", rule.why_and_fix])
    return 0


if __name__ == "__main__":
    sys.exit(main())
