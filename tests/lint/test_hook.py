# SPDX-License-Identifier: MIT
"""Shows what the hook of the commits refuses, in a repository of its own with copies of this one's files."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
COPIED = (".clang-format", "scripts", "src", "tests/Support", "tests/lint")
ITEM = "src/Models/AppInfo.cpp"


class Hook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.root = Path(folder.name)
        for path in COPIED:
            (cls.root / path).parent.mkdir(parents=True, exist_ok=True)
            if (ROOT / path).is_dir():
                shutil.copytree(ROOT / path, cls.root / path, ignore=shutil.ignore_patterns("__pycache__"))
            else:
                shutil.copy(ROOT / path, cls.root / path)
        cls.git("init", "-q", "-b", "main")
        cls.git("config", "core.hooksPath", "scripts/hooks")
        cls.git("add", ".")
        cls.git("commit", "-q", "--no-verify", "-m", "first")
        cls.git("tag", "first")

    @classmethod
    def git(cls, *arguments):
        # Whoever runs the tests may be within a hook of another repository.
        environment = {name: value for name, value in os.environ.items() if not name.startswith("GIT_")}
        identity = ("-c", "user.name=t", "-c", "user.email=t@t.invalid")
        return subprocess.run(["git", "-C", cls.root, *identity, *arguments], check="commit" not in arguments,
                              capture_output=True, text=True, env=environment)

    def setUp(self):
        self.addCleanup(self.git, "reset", "-q", "--hard", "first")

    def stage(self, text, path=ITEM):
        """Adds text to a file and stages it."""
        with open(self.root / path, "a", encoding="utf-8") as file:
            file.write(text)
        self.git("add", path)

    def committed(self):
        return self.git("commit", "-q", "-m", "second")

    def test_what_is_in_order_is_committed(self):
        self.stage("\n// A remark.\n")
        made = self.committed()
        self.assertEqual((made.returncode, made.stdout), (0, ""), made.stderr)

    def test_what_is_not_formatted_is_refused(self):
        self.stage("\nint   much ( ) ;\n")
        made = self.committed()
        self.assertEqual(made.returncode, 1)
        self.assertIn(f"{ITEM}:", made.stderr)

    def test_what_breaks_a_rule_is_refused(self):
        self.stage("\n// TODO\n")
        made = self.committed()
        self.assertEqual(made.returncode, 1)
        self.assertIn("What is merged is finished", made.stderr)

    def test_the_staged_text_counts_and_not_the_working_copy(self):
        original = (self.root / ITEM).read_text(encoding="utf-8")
        self.stage("\nint   much ( ) ;\n")
        (self.root / ITEM).write_text(original, encoding="utf-8")
        self.assertEqual(self.committed().returncode, 1)
        self.git("reset", "-q", "--hard")
        self.stage("\n// Another remark.\n")
        with open(self.root / ITEM, "a", encoding="utf-8") as file:
            file.write("int   much ( ) ;\n")
        self.assertEqual(self.committed().returncode, 0)

    def test_a_file_that_is_taken_away_is_not_looked_for(self):
        self.git("rm", "-q", ITEM)
        made = self.committed()
        self.assertEqual(made.returncode, 0, made.stderr)


if __name__ == "__main__":
    unittest.main()
