# SPDX-License-Identifier: MIT
"""Started without standard output, input or error, the program shows its window and works."""

from gi.repository import Atspi

SAMPLES = ["Computer Suunto EON Core", "GAV Scubapro Hydros", "Erogatore Apeks XTX50"]


def journey(run, data):
    for redirection in (">&-", "<&- >&- 2>&-"):
        program = run(shell=f'exec "$0" "$@" {redirection}')
        program.wait_for_rows(SAMPLES)
        program.find(Atspi.Role.LABEL, "3 articoli")
        program.key("ctrl+f")
        program.type("apeks")
        program.wait_for_rows(["Erogatore Apeks XTX50"])
        program.close()
