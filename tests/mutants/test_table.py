# SPDX-License-Identifier: MIT
"""The table's own check refuses what does not fit."""

import tempfile
import unittest
from pathlib import Path

import table

FITTING = table.Mutant("fits", "src/A.cpp", "a < b", "a > b", "Room/tst_A")


def changed(**values):
    return table.Mutant(**{**vars(FITTING), **values})


class Faults(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for name, text in (("src/A.cpp", "if (a < b)\nif (c < d)\nif (c < d)\n"), ("tests/Room/tst_A.cpp", "")):
            (self.root / name).parent.mkdir(parents=True)
            (self.root / name).write_text(text, encoding="utf-8")

    def faults(self, mutant):
        return list(table.faults(self.root, [mutant]))

    def test_what_fits(self):
        self.assertEqual(self.faults(FITTING), [])
        self.assertIn("a > b", FITTING.applied_to("if (a < b)"))
        self.assertEqual(FITTING.target, "tests_room")

    def test_what_does_not(self):
        for expected, values in (("stands 0 times", {"text": "e < f"}), ("stands 2 times", {"text": "c < d"}),
                                 ("there is no src/B.cpp", {"file": "src/B.cpp"}),
                                 ("changes nothing", {"becomes": "a < b"}),
                                 ("no test class Room/tst_B", {"test": "Room/tst_B"})):
            with self.subTest(expected):
                self.assertEqual(len(self.faults(changed(**values))), 1)
                self.assertIn(expected, self.faults(changed(**values))[0])


if __name__ == "__main__":
    unittest.main()
