# SPDX-License-Identifier: MIT
"""modes.py BUILD: everybody may read what is installed, whatever the umask of who installs it. What was there before
stays as it was."""

import sys

from installed import installation


PRIVATE = 0o710


def make_private_share(usr):
    share = usr / "share"
    share.mkdir(parents=True)
    usr.chmod(0o755)
    share.chmod(PRIVATE)


def wanted_mode(path, usr):
    if path == usr / "share":
        return PRIVATE
    return 0o755 if path.is_dir() or path.parent == usr / "bin" else 0o644


def main():
    with installation(sys.argv[1], make_private_share) as usr:
        found = [usr, *sorted(usr.rglob("*"))]
        complaints = [f"{path.relative_to(usr.parent)} has the mode {path.stat().st_mode & 0o7777:04o} instead of "
                      f"{wanted_mode(path, usr):04o}." for path in found
                      if path.stat().st_mode & 0o7777 != wanted_mode(path, usr)]
    if len(found) < 10:
        complaints.append(f"only {len(found)} files and folders are installed.")
    return "\n".join(complaints) or 0


sys.exit(main())
