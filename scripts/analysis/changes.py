# SPDX-License-Identifier: MIT
"""Which files a person has changed."""

import subprocess

# What a branch is compared with, when nothing else is said: the first of these that there is.
BASES = ("@{upstream}", "origin/HEAD", "origin/main", "main", "HEAD")


class NoHistory(Exception):
    pass


def git(root, *arguments):
    made = subprocess.run(["git", "-C", root, *arguments], capture_output=True, text=True, check=False)
    return made.stdout if made.returncode == 0 else None


def merge_base(root, base=None):
    for candidate in [base] if base else BASES:
        if found := git(root, "merge-base", "HEAD", candidate):
            return found.strip()
    raise NoHistory(f"{base or 'HEAD'} is no commit that this one has an ancestor in common with.")


def changed_files(root, base=None):
    """Files that differ from the commit where this branch left `base`, in commits or not yet; new files are among them."""
    names = git(root, "diff", "--name-only", "--diff-filter=d", "-z", merge_base(root, base)) or ""
    names += git(root, "ls-files", "--others", "--exclude-standard", "-z") or ""
    return sorted({root / name for name in names.split("\0") if name})
