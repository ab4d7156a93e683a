# SPDX-License-Identifier: MIT
"""Shows how sources are put into batches, which ones have changed and what is remembered of them; no tool is run."""

import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts" / "analysis"))

from batches import Batch, Sources, flags_of, is_ours  # noqa: E402
from changes import NoHistory, changed_files  # noqa: E402
from planted import missed  # noqa: E402
from run import Runner, ToolFailed  # noqa: E402
from tools import AT_START, Clazy  # noqa: E402

COMMAND = ("/usr/bin/cmake -E env A=b,c /usr/bin/ccache /usr/bin/c++ -DQUOTED=\\\"x\\\" -I/r/src -isystem /usr/include/q -O1"
           " -Winvalid-pch -include /r/build/cmake_pch.hxx -include /r/ours.h -Xclang -fno-pch-timestamp -Werror -std=c++20"
           " -fpch-preprocess -MD -MT a.o -MF a.o.d -o a.o -c /r/src/A.cpp")

# Complains of each line that says so; an error is what it makes of names that are there twice.
TOOL = """
import re, sys
unit = sys.argv[1]
included = re.findall('#include "(.*)"', open(unit).read()) or [unit]
names = []
open(LOG, "a").write(" ".join(path.rsplit("/", 1)[1] for path in included) + chr(10))
for path in included:
    for number, line in enumerate(open(path).read().splitlines(), start=1):
        if line.startswith("bad"):
            print(f"{path}:{number}:1: warning: bad [check-bad]")
        if line.startswith("remark"):
            print(f"{path}:{number}:1: warning: remark [-Wremark]")
        if line.startswith("name"):
            if line in names:
                print(f"{path}:{number}:1: error: redefinition [diagnostic]")
            names.append(line)
        if line == "crash":
            sys.exit(9)
"""

COMPILER = """#!/bin/sh
for last; do :; done
cat "$last"
sed -n 's/#include "\\(.*\\)"/\\1/p' "$last" | xargs -r cat
"""


class Flags(unittest.TestCase):
    def test_what_belongs_to_the_object_file_is_left_out(self):
        self.assertEqual(flags_of(COMMAND, "/r/src/A.cpp"),
                         ('-DQUOTED="x"', "-I/r/src", "-isystem", "/usr/include/q", "-O1", "-include", "/r/ours.h", "-std=c++20"))


class Folder(unittest.TestCase):
    """A tree of its own, with compile commands for its folder src."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name).resolve()
        self.build = self.root / "build"
        self.build.mkdir()

    def write(self, path, text=""):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")
        return file

    def sources(self, **flags_by_name):
        entries = [{"directory": str(self.build), "file": str(self.root / path), "command": f"c++ -I{flag} -c {self.root / path}"}
                   for path, flag in flags_by_name.items()]
        self.write("build/compile_commands.json", json.dumps(entries))
        return Sources(self.root, self.build)


class Batches(Folder):
    def test_only_what_is_written_by_hand_and_compiles_is_ours(self):
        for path, expected in (("src/A.cpp", True), ("tests/A.h", True), ("build/dev/src/moc.cpp", False), ("src/A.mm", False),
                               ("tests/lint/fixtures/A.cpp", False), ("tests/walls/A.cpp", False)):
            self.assertEqual(is_ours(self.root, self.root / path), expected, path)
        self.assertFalse(is_ours(self.root, Path("/usr/include/A.h")))

    def test_a_batch_has_one_set_of_flags_and_no_more_sources_than_allowed(self):
        files = [self.write(f"src/{name}.cpp") for name in "ABCDE"]
        sources = self.sources(**{"src/A.cpp": "x", "src/B.cpp": "x", "src/C.cpp": "x", "src/D.cpp": "y", "src/E.cpp": "x"})
        self.assertEqual([[file.name for file in batch.files] for batch in sources.batches(files, 3)],
                         [["A.cpp", "B.cpp"], ["C.cpp", "E.cpp"], ["D.cpp"]])

    def test_what_is_compiled_together_has_the_flags_of_the_whole(self):
        files = [self.write(f"tests/{name}.cpp") for name in "AB"]
        self.write("build/Unity/unity_0_cxx.cxx",
                   "/* made */\n" + "".join(f'/* NOLINT */\n#include "{file}"\n' for file in files) + "#undef X\n")
        sources = self.sources(**{"build/Unity/unity_0_cxx.cxx": "x", "src/C.cpp": "y"})
        self.assertEqual([sources.flags(file) for file in files], [("-Ix",), ("-Ix",)])

    def test_what_is_not_compiled_has_its_neighbours_flags(self):
        sources = self.sources(**{"src/A.cpp": "x", "src/Room/B.cpp": "y"})
        for path in ("src/A.cpp", "src/Room/B.cpp", "src/Room/Portable.cpp"):
            self.write(path)
        self.assertEqual([file.name for file in sources.all()], ["A.cpp", "B.cpp", "Portable.cpp"])
        self.assertEqual(sources.flags(self.root / "src/Room/Portable.cpp"), ("-Iy",))
        self.assertEqual(sources.flags(self.root / "src/Room/Deeper/C.h"), ("-Iy",))
        self.assertEqual(sources.flags(self.root / "src/D.h"), ("-Ix",))
        self.write("src/Room/B.cpp", '#include "D.h"\n')
        self.assertEqual(sources.flags(self.root / "src/D.h"), ("-Iy",))

    def test_what_is_not_compiled_is_not_looked_at_with_others(self):
        sources = self.sources(**{"src/A.cpp": "x", "src/B.cpp": "x"})
        files = [self.write(f"src/{name}.cpp") for name in ("A", "B", "Portable")]
        files.append(self.write("src/C.h"))
        self.assertEqual([len(batch.files) for batch in sources.batches(files, 9)], [3, 1])


class Changes(Folder):
    def git(self, *arguments):
        identity = ("-c", "user.name=t", "-c", "user.email=t@t.invalid")
        subprocess.run(["git", "-C", self.root, *identity, *arguments], check=True, capture_output=True)

    def changed(self, base=None):
        return [str(file.relative_to(self.root)) for file in changed_files(self.root, base)]

    def setUp(self):
        super().setUp()
        # Whoever runs the tests may be within a hook of another repository.
        for name in [name for name in os.environ if name.startswith("GIT_")]:
            self.enterContext(mock.patch.dict(os.environ))
            del os.environ[name]
        self.git("init", "-q", "-b", "main")
        for path in ("src/A.cpp", "src/B.cpp", "src/C.cpp", ".gitignore"):
            self.write(path, "build\n")
        self.git("add", ".")
        self.git("commit", "-q", "-m", "first")

    def test_in_a_fresh_clone_nothing_has(self):
        self.assertEqual(self.changed(), [])

    def test_what_is_not_committed_has_and_what_is_new_or_ignored(self):
        self.write("src/A.cpp", "other\n")
        self.write("src/Nuovo è.cpp")
        self.write("build/D.cpp")
        (self.root / "src/C.cpp").unlink()
        self.assertEqual(self.changed(), ["src/A.cpp", "src/Nuovo è.cpp"])

    def test_what_a_branch_has_committed_has_but_not_what_others_have(self):
        self.git("checkout", "-q", "-b", "branch")
        self.write("src/A.cpp", "other\n")
        self.git("commit", "-q", "-a", "-m", "second")
        self.git("checkout", "-q", "main")
        self.write("src/B.cpp", "other\n")
        self.git("commit", "-q", "-a", "-m", "third")
        self.git("checkout", "-q", "branch")
        self.assertEqual(self.changed(), ["src/A.cpp"])
        self.assertEqual(self.changed("HEAD"), [])
        self.assertEqual(self.changed("main~1"), ["src/A.cpp"])

    def test_a_base_that_is_not_there_is_told(self):
        with self.assertRaisesRegex(NoHistory, "nowhere"):
            self.changed("nowhere")

    def test_without_history_it_is_told(self):
        with tempfile.TemporaryDirectory() as folder, self.assertRaises(NoHistory):
            changed_files(Path(folder))


class Counting(unittest.TestCase):
    def test_constants_may_be_made_at_the_start_of_what_is_started_for_them(self):
        tool = Clazy.__new__(Clazy)
        tool.root = Path("/r")
        for path, checks, expected in (("/r/src/A.cpp", AT_START, True), ("/r/tests/Models/A.cpp", AT_START, False),
                                       ("/r/benchmarks/A.cpp", AT_START, False), ("/r/tests/A.h", "-Wclazy-foreach", True),
                                       ("/r/tests/lint/planted/clazy/A.cpp", AT_START, True), ("/q/A.h", AT_START, True),
                                       ("/r/src/A.cpp", "-Wshadow", False)):
            self.assertEqual(tool.counts(path, checks), expected, (path, checks))


class FakeTool:
    name = "fake"
    identity = "fake 1"

    def __init__(self, folder):
        self.log = folder / "log"
        self.log.touch()
        program = folder / "tool.py"
        program.write_text(f"LOG = {str(self.log)!r}\n{TOOL}", encoding="utf-8")
        self.command = [sys.executable, program]
        self.compiler = folder / "compiler"
        self.compiler.write_text(COMPILER, encoding="utf-8")
        self.compiler.chmod(0o755)

    def counts(self, _path, checks):
        return checks.startswith("check-")


class Running(Folder):
    def setUp(self):
        super().setUp()
        self.tool = FakeTool(self.build)

    def run_over(self, *files):
        """The runner, and which sources the tool looked at in each unit."""
        self.tool.log.write_text("", encoding="utf-8")
        self.said = []
        runner = Runner(self.tool, self.build / "analysis", self.said.append)
        runner.run([Batch(("-x",), files)])
        return runner, self.tool.log.read_text(encoding="utf-8").splitlines()

    def test_what_was_clean_is_not_looked_at_again(self):
        files = self.write("src/A.cpp", "good"), self.write("src/B.cpp", "good")
        runner, looked_at = self.run_over(*files)
        self.assertEqual((looked_at, runner.looked_at, runner.findings), (["A.cpp B.cpp"], 2, set()))
        runner, looked_at = self.run_over(*files)
        self.assertEqual((looked_at, runner.looked_at), ([], 0))

    def test_it_is_when_its_text_or_the_tool_is_another(self):
        file = self.write("src/A.cpp", "good")
        self.run_over(file)
        file.write_text("better", encoding="utf-8")
        self.assertEqual(self.run_over(file)[1], ["A.cpp"])
        self.tool.identity = "fake 2"
        self.assertEqual(self.run_over(file)[1], ["A.cpp"])

    def test_only_the_tools_own_warnings_count(self):
        self.assertEqual(self.run_over(self.write("src/A.cpp", "remark"))[0].findings, set())

    def test_what_was_not_clean_is_looked_at_again(self):
        file = self.write("src/A.cpp", "good\nbad")
        for _ in range(2):
            runner, looked_at = self.run_over(file)
            self.assertEqual(runner.findings, {f"{file}:2:1: warning: bad [check-bad]"})
            self.assertEqual(looked_at, ["A.cpp"])

    def test_a_source_whose_names_clash_is_looked_at_apart(self):
        files = [self.write(f"src/{name}.cpp", text) for name, text in zip("ABCD", ("name x", "good", "name x", "bad"))]
        runner, looked_at = self.run_over(*files)
        self.assertEqual(looked_at, ["A.cpp B.cpp C.cpp D.cpp", "A.cpp B.cpp D.cpp", "C.cpp"])
        self.assertEqual(len(runner.parted), 1)
        self.assertEqual(runner.findings, {f"{files[3]}:1:1: warning: bad [check-bad]"})
        files[3].write_text("good", encoding="utf-8")
        self.run_over(*files)
        self.assertEqual(self.run_over(*files)[1], [])

    def test_a_batch_with_errors_in_all_sources_is_halved(self):
        files = [self.write(f"src/{name}.cpp", "name x\nname x") for name in "ABC"]
        runner, looked_at = self.run_over(*files)
        self.assertEqual(looked_at, ["A.cpp B.cpp C.cpp", "A.cpp", "B.cpp C.cpp", "B.cpp", "C.cpp"])
        self.assertEqual(len(runner.findings), 3)
        self.assertEqual(set(self.said), runner.findings)

    def test_an_error_in_one_source_is_a_finding(self):
        file = self.write("src/A.cpp", "name x\nname x")
        self.assertEqual(self.run_over(file)[0].findings, {f"{file}:2:1: error: redefinition [diagnostic]"})

    def test_a_tool_that_fails_is_told(self):
        with self.assertRaisesRegex(ToolFailed, "A.cpp"):
            self.run_over(self.write("src/A.cpp", "crash"))

    def test_what_is_planted_and_not_found_is_named(self):
        sources = self.sources(**{"src/A.cpp": "x"})
        self.write("src/A.cpp")
        planted = self.write("tests/lint/planted/fake/A.cpp", "bad // planted: check-bad\ngood // planted: check-good, check-bad\n")
        self.assertEqual(missed(Runner(self.tool, self.build / "analysis"), sources),
                         [f"{planted}:2: check-bad", f"{planted}:2: check-good"])


if __name__ == "__main__":
    unittest.main()
