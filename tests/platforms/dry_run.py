#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""dry_run.py SYSTEM FOLDER SOURCE VERSION BUILD ID CMAKE-ARGUMENTS...: configures the project for macOS (Darwin) or Windows with the
tools of this one, builds nothing, and reads what an installation there would consist of."""

import pathlib
import plistlib
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree


def check(condition, complaint):
    if not condition:
        raise SystemExit(complaint)


def equal(what, found, expected):
    check(found == expected, f"{what}: {found!r} instead of {expected!r}")


def configure(system, source, folder, arguments):
    shutil.rmtree(folder, ignore_errors=True)
    process = subprocess.run(
        ["cmake", "-S", source, "-B", folder, "-G", "Ninja", f"-DCMAKE_SYSTEM_NAME={system}",
         "-DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY", "-DABISSORA_TESTS=OFF",
         "-DABISSORA_DEVELOPMENT_PROGRAMS=OFF", *arguments],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    check(process.returncode == 0, process.stdout)


def install_script(folder):
    return (folder / "cmake_install.cmake").read_text(encoding="utf-8")


def check_nothing_of_other_desktops(folder):
    for foreign in (".desktop", "metainfo", "/man1", "hicolor"):
        check(foreign not in install_script(folder), f"{foreign} is installed, which has no use there")
    check("licenses" in install_script(folder), "the licences of the icons are not installed")


def check_bundle(folder, icons, version, build, identifier):
    with open(folder / "packaging" / "Info.plist", "rb") as file:
        told = plistlib.load(file)
    equal("identifier", told["CFBundleIdentifier"], identifier.replace("_", "-"))
    equal("version", told["CFBundleShortVersionString"], version)
    equal("build", told["CFBundleVersion"], build)
    equal("program", told["CFBundleExecutable"], "abissora")
    equal("kind", told["CFBundlePackageType"], "APPL")
    check(told["NSHighResolutionCapable"] is True, "the bundle would be drawn in coarse pixels")
    for key, value in told.items():
        check(value not in ("", None) or key == "CFBundleIconFile", f"{key} is empty")
    rules = (folder / "build.ninja").read_text(encoding="utf-8")
    check("abissora.app/Contents/MacOS/abissora" in rules, "the program is no bundle")
    check("abissora.app" in install_script(folder), "the bundle is not installed")
    if (icons / "abissora.icns").exists():
        equal("icon", told["CFBundleIconFile"], "abissora.icns")
        check("abissora.app/Contents/Resources/abissora.icns" in rules, "the bundle has no icon")
    else:
        equal("icon", told["CFBundleIconFile"], "")
    # The finished bundle gets the description as it is.
    found = [path for path in folder.rglob("Info.plist") if "abissora.app" in str(path) or "abissora.dir" in str(path)]
    check(found, "no description for the bundle was generated")
    with open(found[0], "rb") as file:
        equal("the bundle's description", plistlib.load(file), told)


def check_manifest(path, identifier):
    root = ElementTree.parse(path).getroot()
    texts = {element.tag.split("}")[1]: (element.text or "").strip() for element in root.iter()}
    equal("code page", texts["activeCodePage"], "UTF-8")
    equal("long paths", texts["longPathAware"], "true")
    check(texts["dpiAwareness"].startswith("PerMonitorV2"), "the manifest knows no screens of different density")
    levels = [element.get("level") for element in root.iter() if element.tag.endswith("requestedExecutionLevel")]
    equal("rights", levels, ["asInvoker"])
    names = [(each.get("name"), each.get("version")) for each in root.iter() if each.tag.endswith("assemblyIdentity")]
    equal("identity", names[0][0], identifier)
    check(("Microsoft.Windows.Common-Controls", "6.0.0.0") in names, "no common controls 6")


def check_windows(folder, icons, version, build, identifier):
    check_manifest(folder / "packaging" / "abissora.manifest", identifier)
    resources = (folder / "packaging" / "abissora.rc").read_text(encoding="utf-8")
    check("@" not in resources, "a placeholder is left in the resources")
    numbers = f"{version}.{build}".replace(".", ",")
    check(f"FILEVERSION {numbers}\n" in resources, f"the resources do not have the version {numbers}")
    equal("icon", (icons / "abissora.ico").exists(), "ICON" in resources)
    rules = (folder / "build.ninja").read_text(encoding="utf-8")
    check("abissora.rc" in rules and re.search(r"\babissora\.exe\b", rules), "the program has no resources")


def check_compiled_resources(windres, folder, version):
    """As the compiler of resources understands them."""
    source, compiled, back = (folder / "packaging" / name for name in ("abissora.rc", "abissora.res", "again.rc"))
    subprocess.run([windres, "--preprocessor=gcc", "--preprocessor-arg=-E", "--preprocessor-arg=-xc",
                    "--preprocessor-arg=-DRC_INVOKED", "-O", "res", source, compiled], check=True)
    subprocess.run([windres, "-J", "res", "-O", "rc", compiled, back], check=True)
    text = back.read_text(encoding="utf-8", errors="replace")
    check(f'VALUE "ProductVersion", "{version}' in text, "the compiled resources have no version")
    check(re.search(r"^(1|0x1) (24|0x18)", text, re.MULTILINE), "the compiled resources have no manifest")


def main(system, folder, source, windres, version, build, identifier, *arguments):
    folder, source = pathlib.Path(folder), pathlib.Path(source)
    icons = source / "packaging" / "icons"
    configure(system, source, folder, arguments)
    check_nothing_of_other_desktops(folder)
    if system == "Darwin":
        check_bundle(folder, icons, version, build, identifier)
    else:
        check_windows(folder, icons, version, build, identifier)
        check_compiled_resources(windres, folder, version)


main(*sys.argv[1:])
