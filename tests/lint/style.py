# SPDX-License-Identifier: MIT
"""Rules about single lines and files."""

import re
import subprocess

from rule import Finding, pattern_rule, rule
from tree import PACKAGING

LONGEST_FILE = 400
LONGEST_SOURCE = 300

GLOBAL_COLOURS = (
    r"\bQt::(?:black|white|color[01]|(?:dark|light)?(?:[Rr]ed|[Gg]reen|[Bb]lue|[Cc]yan|[Mm]agenta|[Yy]ellow|[Gg]ray))\b"
)


def is_outside_theme(source):
    return source.is_cpp and source.is_under("src") and not source.is_under("src/Views/Theme")


pattern_rule("style-sheets", lambda source: source.is_cpp and source.is_under("src"), """
There are no style sheets: one rule replaces a control's native drawing, and switching the colour scheme takes several
times as long as with a palette. Fix: draw it in the style (Views/Theme) or set a palette role.
""", [(re.compile(r"\bsetStyleSheet\b"), "sets a style sheet.")])

pattern_rule("colours", is_outside_theme, """
Colours are written down in Views/Theme only, as tokens for the light and the dark scheme whose contrast is tested.
Fix: use a token or the palette; add a token when none fits. Qt::transparent is no colour.
""", [
    (re.compile(r'\bQColor\b(?:\s+\w+)?\s*[({]\s*(?:["0-9]|u"|QStringLiteral|QLatin1String)'), "is a colour literal."),
    (re.compile(r"\bQColor::from\w+\s*\(\s*[\"0-9]"), "is a colour literal."),
    (re.compile(r"\bqRgba?\s*\("), "is a colour literal."),
    (re.compile(GLOBAL_COLOURS), "is a colour literal."),
    (re.compile(r'"#(?:[0-9A-Fa-f]{3,4}|[0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})"'), "is a colour literal."),
])


def is_not_lint(source):
    return not source.is_under("tests/lint")


pattern_rule("leftovers", lambda source: is_not_lint(source) and (source.is_code or source.suffix in PACKAGING), """
What is merged is finished: no notes about work to be done, no test that is skipped. Fix: do it now, or write down what
is known to be missing where a reader looks for it, in ARCHITECTURE.md.
""", [
    (re.compile(r"\b(?:TODO|FIXME|XXX)\b"), "marks unfinished work."),
    (re.compile(r"\bQSKIP\b|@(?:unittest\.)?skip|\bskipTest\b"), "skips a test."),
], comments=True)

pattern_rule("waits", lambda source: is_not_lint(source) and source.is_code and source.is_under("tests"), """
A test waits for a condition, never for time: a pause is too long on a fast machine and too short on a busy one. Fix:
QTRY_VERIFY, QSignalSpy::wait or QTest::qWaitFor with the condition; a fixed clock where time itself is under test.
""", [
    (re.compile(r"\bqWait\s*\(|\bqSleep\s*\("), "waits for time."),
    (re.compile(r"\b[mu]?sleep\s*\(|\bnanosleep\s*\(|\bsleep_(?:for|until)\b"), "waits for time."),
    (re.compile(r"^\s*sleep\s+[0-9$]"), "waits for time."),
    (re.compile(r"\bfrom time import\b.*\bsleep\b"), "waits for time."),
])


@rule("licence", lambda source: source.is_code or source.suffix in PACKAGING, """
Every file says under which terms it may be used, for people and for the tools that collect licences. Fix: write
"SPDX-License-Identifier: MIT" in a comment in the first line (the second after #! or <?xml).
""")
def check_licence(sources):
    for source in sources:
        if not any("SPDX-License-Identifier: MIT" in line for line in source.lines[:2]):
            yield Finding(source.path, 1, "does not name its licence.")


def longest(source):
    return LONGEST_SOURCE if source.is_under("src") else LONGEST_FILE


@rule("length", lambda source: source.is_code, f"""
A file holds one thing and is read in one go: {LONGEST_SOURCE} lines at most under src, {LONGEST_FILE} elsewhere. Fix:
find the second responsibility and give it a class and a file of its own; split a test class by subject.
""")
def check_length(sources):
    for source in sources:
        if len(source.lines) > longest(source):
            yield Finding(source.path, longest(source) + 1, f"has {len(source.lines)} lines.")


@rule("shell", lambda source: source.is_shell, """
The shell scripts parse. Fix: run bash -n on the file.
""")
def check_shell(sources):
    for source in sources:
        parsed = subprocess.run(["bash", "-n", source.absolute], capture_output=True, text=True, env={"LC_ALL": "C"})
        for number, complaint in re.findall(r": line (\d+): (.*)", parsed.stderr):
            yield Finding(source.path, int(number), complaint)
        if parsed.returncode and not parsed.stderr:
            yield Finding(source.path, 1, "does not parse.")
