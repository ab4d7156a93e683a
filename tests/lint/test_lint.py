# SPDX-License-Identifier: MIT
"""Shows that every rule refuses what it is there to refuse, and nothing else.

fixtures/RULE is a small source tree; the lines that the rule must refuse, and only those, hold the word "refused".
"""

import os
import tempfile
import unittest
from pathlib import Path

import layers
import style
from rule import RULES
from tree import Tree

FIXTURES = Path(__file__).parent / "fixtures"


def marked_lines(tree):
    return [(source.path, number) for source in tree.sources
            for number, line in enumerate(source.lines, start=1) if "refused" in line]


class Fixtures(unittest.TestCase):
    maxDiff = None

    def test_every_rule_has_a_fixture(self):
        with_fixture = {folder.name for folder in FIXTURES.iterdir()}
        self.assertEqual(with_fixture | {"length"}, set(RULES))

    def test_the_marked_lines_are_refused(self):
        for folder in sorted(FIXTURES.iterdir()):
            with self.subTest(rule=folder.name):
                tree = Tree(folder)
                findings = RULES[folder.name].findings(tree)
                self.assertTrue(findings)
                self.assertEqual(sorted({finding[:2] for finding in findings}), sorted(marked_lines(tree)))

    def test_length(self):
        with tempfile.TemporaryDirectory() as folder:
            for place, longest in ((".", style.LONGEST_FILE), ("src", style.LONGEST_SOURCE)):
                Path(folder, place).mkdir(exist_ok=True)
                Path(folder, place, "Short.cpp").write_text("\n" * longest, encoding="utf-8")
                Path(folder, place, "Long.cpp").write_text("\n" * (longest + 1), encoding="utf-8")
            findings = RULES["length"].findings(Tree(folder))
        self.assertEqual([finding.path for finding in findings], [Path("Long.cpp"), Path("src/Long.cpp")])


class Reading(unittest.TestCase):
    def test_comments_are_blanked_and_literals_kept(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "A.cpp").write_text(
                'a("// kept"); // gone\nb(\'"\'); /* gone\ngone */ c(1\'000); d(R"x(/* kept */)x"); // gone\n',
                encoding="utf-8")
            (source,) = Tree(folder).sources
            self.assertEqual([line.rstrip() for line in source.code_lines],
                             ['a("// kept");', "b('\"');", "        c(1'000); d(R\"x(/* kept */)x\");"])

    def test_build_folders_and_fixtures_are_left_out(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("build/dev", "node_modules/x", ".git", "tests/lint/fixtures", ".ci", "src/build"):
                Path(folder, name).mkdir(parents=True)
                Path(folder, name, "A.cpp").touch()
            self.assertEqual([str(source.path) for source in Tree(folder).sources], [".ci/A.cpp", "src/build/A.cpp"])


if __name__ == "__main__":
    layers.QT_HEADERS.update({module: [Path(folder) for folder in os.environ[module].split(":")]
                              for module in layers.QT_HEADERS})
    unittest.main()
