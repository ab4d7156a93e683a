# SPDX-License-Identifier: MIT
"""lint.py [RULE...] --root TREE [--qt-core FOLDER...] [--qt-gui FOLDER...] [--qt-network FOLDER...]

Checks the rules, all of them when none is named, and prints what breaks them.
"""

import argparse
import sys
from pathlib import Path

import layers
import style  # noqa: F401, registers its rules
from rule import RULES
from tree import Tree


def complaint(rule, tree):
    """Empty when the tree keeps the rule."""
    if not rule.sources(tree):
        return f"{rule.name}: no file under {tree.root} that the rule is about."
    if findings := rule.findings(tree):
        return "\n".join([*map(str, findings), "", rule.why_and_fix])
    return ""


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("rules", nargs="*", metavar="rule")
    parser.add_argument("--root", required=True, type=Path)
    parser.add_argument("--qt-core", nargs="+", default=[], type=Path)
    parser.add_argument("--qt-gui", nargs="+", default=[], type=Path)
    parser.add_argument("--qt-network", nargs="+", default=[], type=Path)
    options = parser.parse_args()
    layers.QT_HEADERS.update(QtCore=options.qt_core, QtGui=options.qt_gui, QtNetwork=options.qt_network)

    if unknown := set(options.rules) - set(RULES):
        parser.error(f"no such rule: {', '.join(sorted(unknown))}")
    tree = Tree(options.root)
    return "\n\n".join(filter(None, (complaint(RULES[name], tree) for name in options.rules or sorted(RULES)))) or 0


if __name__ == "__main__":
    sys.exit(main())
