# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Starts an analysis of the sources as the development build compiles them. Sourced after setup.sh, with $root set.
: "${root:?}"

# analyse TOOL [options of analyse.py]
analyse() {
  local program=$root/scripts/analysis/analyse.py changed
  complete_environment
  if [[ ${2:-} == --changed ]]; then
    command -v python3 git >/dev/null || install_packages tests
    changed=$(python3 -B "$program" "$@" --list)
    if [[ -z $changed ]]; then
      echo "$1: no source has changed."
      return
    fi
  fi
  install_packages build tests "$1"
  install_icon_sets
  configure dev
  build dev
  python3 -B "$program" "$1" --build "$root/build/dev" "${@:2}"
}
