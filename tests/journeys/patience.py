# SPDX-License-Identifier: MIT
"""Waiting for a condition. Everything polls; nothing waits for a fixed time."""

import threading
import time

# Seconds. Nobody waits that long where things work, not even on a machine that ten others use.
PATIENCE = 120.0
POLL_INTERVAL = 0.02


def until(what, condition, passing=()):
    """Polls until `condition` gives something true, and gives that. Exceptions named by `passing` are a no."""
    deadline = time.monotonic() + PATIENCE
    while True:
        try:
            found = condition()
        except passing:
            found = None
        if found:
            return found
        if time.monotonic() > deadline:
            raise AssertionError("waited in vain for " + what)
        threading.Event().wait(POLL_INTERVAL)  # poll
