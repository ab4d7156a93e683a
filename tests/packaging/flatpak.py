# SPDX-License-Identifier: MIT
"""flatpak.py --manifest FILE --id ID --version VERSION --build FOLDER: the Flatpak is of this program in this version, is
built of sources with known sums, and may do no more than it needs."""

import argparse
import re
import sys
from pathlib import Path

import yaml

from installed import installation, only_file

TEXT, TEXTS = "a text", "a list of texts"
TOP = {"id": TEXT, "runtime": TEXT, "runtime-version": TEXT, "sdk": TEXT, "command": TEXT, "finish-args": TEXTS,
       "cleanup": TEXTS, "modules": None}
MODULE = {"name": TEXT, "buildsystem": TEXT, "builddir": None, "config-opts": TEXTS, "build-commands": TEXTS,
          "cleanup": TEXTS, "sources": None}
SOURCES = {
    "archive": {"type", "url", "path", "sha256"},
    "inline": {"type", "dest-filename", "contents"},
}
BUILD_SYSTEMS = {"cmake-ninja", "simple"}
RIGHTS = {"--share=ipc", "--socket=wayland", "--socket=fallback-x11", "--device=dri", "--persist=.local/state"}
SUM = re.compile(r"[0-9a-f]{64}")


def is_of(kind, value):
    if kind == TEXT:
        return isinstance(value, str) and value
    return isinstance(value, list) and value and all(isinstance(text, str) for text in value)


def malformed(table, kinds, name):
    for key, value in table.items():
        if key not in kinds:
            yield f"{name}: {key} is not known here."
        elif kinds[key] and not is_of(kinds[key], value):
            yield f"{name}: {key} is not {kinds[key]}."


def bad_sources(module):
    sources = module.get("sources") or []
    if not sources:
        yield f"{module.get('name')} has no source."
    for source in sources:
        known = SOURCES.get(source.get("type"), set())
        if not set(source) <= known or not all(isinstance(value, str) for value in source.values()):
            yield f"{module['name']}: a source is malformed: {source}."
        url = source.get("url")
        if url and not (url.startswith("https://") and SUM.fullmatch(source.get("sha256", ""))):
            yield f"{module['name']}: {url} is not fetched safely and checked by its sum."


def schema(manifest):
    yield from malformed(manifest, TOP, "the manifest")
    for key in TOP.keys() - manifest.keys():
        yield f"the manifest has no {key}."
    for module in manifest.get("modules") or []:
        yield from malformed(module, MODULE, f"the module {module.get('name')}")
        if module.get("buildsystem") not in BUILD_SYSTEMS:
            yield f"{module.get('name')} has the build system {module.get('buildsystem')}."
        yield from bad_sources(module)


def differences(manifest, options):
    own = manifest["modules"][-1]
    with installation(options.build) as usr:
        command = only_file(usr / "bin").name
    wanted = [
        ("id", manifest["id"], options.id),
        ("file name", options.manifest.name, options.id + ".yml"),
        ("command", manifest["command"], command),
        ("runtime", manifest["runtime"], "org.kde.Platform"),
        ("sdk", manifest["sdk"], "org.kde.Sdk"),
        ("rights", sorted(manifest["finish-args"]), sorted(RIGHTS)),
        ("own sources", own["sources"], [{"type": "archive", "path": f"abissora-{options.version}.tar.xz"}]),
    ]
    for what, found, right in wanted:
        if found != right:
            yield f"the manifest's {what}: {found!r} instead of {right!r}."
    for option in ("-DABISSORA_UPDATE_CHECK=OFF", f"-DABISSORA_APPLICATION_ID={options.id}", "-DABISSORA_TESTS=OFF"):
        if option not in own["config-opts"]:
            yield f"the program is not configured with {option}."


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--manifest", required=True, type=Path)
    parser.add_argument("--id", required=True)
    parser.add_argument("--version", required=True)
    parser.add_argument("--build", required=True)
    options = parser.parse_args()
    manifest = yaml.safe_load(options.manifest.read_text(encoding="utf-8"))
    complaints = [*schema(manifest)] or [*differences(manifest, options)]
    return "\n".join(complaints) or 0


sys.exit(main())
