#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# refusals.sh SOURCE FOLDER: what cannot become a package is refused with the reason, before anything is built.
set -euo pipefail
source=$1
folder=$2

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# refused REASON COMMAND...
refused() {
  local reason=$1 said
  shift
  if said=$("$@" 2>&1 </dev/null); then
    fail "This is to be refused: $*"
  fi
  [[ $said == *"$reason"* ]] || fail "Refused, but not because of «$reason»:" "$said"
}

rm -rf "$folder"
mkdir -p "$folder"
git clone --quiet --no-hardlinks --depth 1 "file://$source" "$folder/clone"
cp "$source/package" "$folder/clone/package"
cp -r "$source/scripts" "$folder/clone/"
git -C "$folder/clone" -c user.name=Anna -c user.email=anna@abissora.example -c commit.gpgsign=false \
  commit --quiet --all --allow-empty --message "What lies here"

cd "$folder/clone"
git clean --quiet --force -d
unset ABISSORA_WEBSITE_URL
refused "Uso: ./package" ./package --official
refused "segnaposto (https://abissora.example/)" ./package
touch left-over
refused "left-over" ./package --unofficial
[[ ! -e dist ]] || fail "Refused, and yet there is a folder dist."

# What goes wrong while building is told, not only that something did.
mkdir -p "$folder/broken-1.0/debian"
cd "$folder"
printf '%s\n' "Source: broken" "Maintainer: A <a@abissora.example>" "Standards-Version: 4.6.2" "" \
  "Package: broken" "Architecture: all" "Description: broken" >broken-1.0/debian/control
printf '%s\n' "broken (1.0) unstable; urgency=low" "" "  * Broken." "" \
  " -- A <a@abissora.example>  Sun, 22 Nov 2026 12:00:00 +0000" >broken-1.0/debian/changelog
printf '%s\n' '#!/bin/sh' 'test "$1" = binary || exit 0' \
  'echo "dpkg-shlibdeps: error: no dependency information found for /usr/local/lib/libQt6Core.so.6" >&2; exit 2' \
  >broken-1.0/debian/rules
chmod +x broken-1.0/debian/rules
tar --create --xz --file broken-1.0.tar.xz broken-1.0
refused "no dependency information found for /usr/local/lib" \
  "$source/scripts/debian-package" "$folder/broken-1.0.tar.xz" "$folder/none" "$folder/place"
[[ -z $(find "$folder/none" -name '*.deb') ]] || fail "A package was left although it did not succeed."
