# SPDX-License-Identifier: MIT
"""Runs a tool over batches, one on each processor, and remembers in which ones it found nothing."""

import hashlib
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from threading import Lock

DIAGNOSTIC = re.compile(r"^(?P<path>/[^:\n]+):(?P<line>\d+):\d+: (?P<kind>warning|(?:fatal )?error): "
                        r".*?(?:\[(?P<checks>[^\[\]]+)\])?$", re.MULTILINE)
CLEAN = "clean"


class ToolFailed(Exception):
    pass


class Runner:
    """Findings are lines of text, which `say` hears at once. A batch whose names clash is looked at in parts."""

    def __init__(self, tool, work, say=lambda finding: None):
        self.tool = tool
        self.work = work
        self.remembered = work / "clean"
        self.remembered.mkdir(parents=True, exist_ok=True)
        self.findings = set()
        self.looked_at = 0
        self.parted = []
        self.say = say
        self.lock = Lock()

    def source(self, batch):
        """A single source is itself the unit: some checks look at nothing else than the unit's own file."""
        if len(batch.files) == 1 and batch.files[0].suffix == ".cpp":
            return batch.files[0]
        name = hashlib.sha256("\0".join([*batch.flags, batch.text()]).encode()).hexdigest()[:16]
        # The analyser of clang takes what is included for the unit's own in files of this name only.
        source = self.work / f"UnifiedSource_{name}.cpp"
        source.write_text(batch.text(), encoding="utf-8")
        return source

    def complaints(self, batch):
        """What the tool says of a batch, looked at anew: matches of DIAGNOSTIC."""
        made = subprocess.run([*self.tool.command, self.source(batch), "--", *batch.flags], capture_output=True, text=True,
                              errors="replace", check=False)
        found = [complaint for complaint in DIAGNOSTIC.finditer(made.stdout + made.stderr)
                 if complaint["kind"] != "warning" or self.tool.counts(complaint["path"], complaint["checks"] or "")]
        if made.returncode and not found:
            raise ToolFailed(f"{' '.join(map(str, batch.files))}:\n{made.stdout}{made.stderr}")
        return found

    def look_at(self, batch):
        place = self._place(batch)
        outcome = place.read_text(encoding="utf-8") if place and place.exists() else ""
        if not outcome:
            outcome = self._outcome(batch)
            if place and outcome:
                place.write_text(outcome, encoding="utf-8")
        if outcome != CLEAN and outcome:
            self.parted.append(batch)
            for part in batch.parts(outcome.splitlines()):
                self.look_at(part)

    def run(self, batches):
        batches = sorted(batches, key=lambda batch: -len(batch.files))
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            for done, _ in enumerate(pool.map(self.look_at, batches), start=1):
                if sys.stderr.isatty():
                    end = "\n" if done == len(batches) else ""
                    print(f"\r{done} of {len(batches)}", end=end, file=sys.stderr, flush=True)

    def _place(self, batch):
        """Where the outcome is kept, under a name that tells everything it depends on. None for what cannot be read."""
        command = [self.tool.compiler, *batch.flags, "-w", "-E", "-C", self.source(batch)]
        made = subprocess.run(command, capture_output=True, check=False)
        if made.returncode:
            return None
        return self.remembered / hashlib.sha256(self.tool.identity.encode() + b"\0" + made.stdout).hexdigest()

    def _outcome(self, batch):
        """CLEAN, or the sources whose names clash with others, one a line; empty when something was found."""
        found = self.complaints(batch)
        errors = {complaint["path"] for complaint in found if complaint["kind"] != "warning"}
        if errors and len(batch.files) > 1:
            return "\n".join(sorted(errors))
        self.looked_at += len(batch.files)
        with self.lock:
            for finding in sorted({complaint[0] for complaint in found} - self.findings):
                self.findings.add(finding)
                self.say(finding)
        return "" if found else CLEAN
