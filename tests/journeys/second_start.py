# SPDX-License-Identifier: MIT
"""A second start on the same register ends at once and leaves the first one running."""

import subprocess

from program import PATIENCE


def journey(run, data):
    first = run()
    path = first.process.args[0]
    second = subprocess.run([path, "--data-dir", data], capture_output=True, text=True, timeout=PATIENCE, check=True)
    assert "è già aperta" in second.stderr, second.stderr
    assert second.stdout == "", second.stdout
    assert first.process.poll() is None
    first.close()
