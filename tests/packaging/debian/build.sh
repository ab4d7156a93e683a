#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# build.sh SOURCE FOLDER: makes archive and package of the working tree in FOLDER/dist.
set -euo pipefail
source=$1
folder=$2

rm -rf "$folder/dist"
archive=$("$source/scripts/source-archive" "$folder/dist" --working-tree)
"$source/scripts/debian-package" "$archive" "$folder/dist" "$folder/package"
# The objects of a whole build are of no further use.
rm -rf "$folder/package"
