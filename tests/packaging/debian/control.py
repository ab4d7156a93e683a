# SPDX-License-Identifier: MIT
"""What the package asks of the system, and what it says of itself."""

from package import Package, judge

LINKED = ["libc6", "libqt6core6", "libqt6gui6", "libqt6svg6", "libqt6widgets6", "libqt6printsupport6", "libstdc++6"]
LOADED = ["libarchive13", "libcurl4", "qt6-translations-l10n"]  # not linked, so not found by dpkg-shlibdeps
FONTS = ["fonts-inter", "fonts-noto-color-emoji"]
ONLY_FOR_BUILDING = ["cmake", "ninja-build", "nodejs", "npm", "libarchive-dev"]


def names(field):
    """Of each alternative the first, without its version."""
    return [entry.strip().split(" ")[0] for entry in field.split(",")]


def complaints(package):
    depends, recommends = names(package.field("Depends")), names(package.field("Recommends"))
    for name in LINKED + LOADED:
        if name not in depends:
            yield f"the package does not depend on {name}."
    for name in FONTS:
        if name not in recommends or name in depends:
            yield f"{name} is to be recommended, not asked for."
    for name in ONLY_FOR_BUILDING:
        if name in depends + recommends:
            yield f"the package asks for {name}, which only building it needs."
    if package.field("Version") != f"{package.version}-1":
        yield f"the package has the version {package.field('Version')}."
    if not package.field("Homepage").startswith("https://"):
        yield "the package names no homepage."
    if len(package.field("Description").splitlines()) < 8:
        yield "the package has no long description."


judge(complaints(Package()))
