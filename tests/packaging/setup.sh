#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# setup.sh SOURCE: what ./run says and does while a machine is made ready, with commands that only play their parts.
set -euo pipefail
source=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

says() {
  [[ $said == *"$1"* ]] || fail "This is missing: $1" "in what was said:" "$said"
}

# plays COMMAND: what the command does is read from standard input.
plays() {
  { echo '#!/bin/bash'; cat; } >"$folder/bin/$1"
  chmod +x "$folder/bin/$1"
}

# A tree in which nothing is installed and nothing is built.
mkdir -p "$folder/bin" "$folder/tree/packaging"
cp -r "$source/run" "$source/scripts" "$source/CMakeLists.txt" "$source/package-lock.json" "$folder/tree/"
printf '%s\n' "first-package" "second-package" >"$folder/tree/scripts/packages/build"
plays dpkg-query </dev/null
plays cmake <<<'exit 1'
export PATH=$folder/bin:$PATH ABISSORA_PATIENCE=0.1

# sees COMMAND...: runs it, whatever its status, as somebody who is not root.
sees() {
  said=$("$@" 2>&1 </dev/null || true)
}
as_somebody() {
  sed -i 's/EUID != 0/1000 != 0/' "$folder/tree/scripts/setup.sh"
}

# Questions about the program are answered at once.
plays apt-get <<<'echo asked >&2; exit 1'
sees "$folder/tree/run" --version
[[ $said == "Abissora "[0-9]* ]] || fail "--version asks for more than it needs:" "$said"
sees "$folder/tree/run" --help
says --data-dir
[[ $said != *asked* ]] || fail "--help installs packages:" "$said"

# Waiting and installing are told.
plays apt-get <<'PLAY'
case " $* " in
  *" indextargets "*) echo http://packages.abissora.example/debian ;;
  *" update "*) read -r -t 0.5 <>"$(dirname "$0")/pause" || true ;;
  *" install "*) printf '%s\n' "dlstatus:1:10:Retrieving" "pmstatus:first-package:50:Unpacking" ;;
esac
PLAY
mkfifo "$folder/bin/pause"
plays npm <<'PLAY'
case " $* " in
  *" registry "*) echo https://registry.abissora.example/ ;;
  *) read -r -t 0.5 <>"$(dirname "$0")/pause" || true ;;
esac
PLAY
sees "$folder/tree/run"
says "http://packages.abissora.example/debian"
says "Scarico i pacchetti: 10 %"
says "Installo i pacchetti: 50 %"
says "Aspetto le icone (https://registry.abissora.example/)"

# Without the right to install, what an administrator has to type is told.
rm "$folder/tree/node_modules/.installed-lock.json" 2>/dev/null || true
as_somebody
plays sudo <<<'exit 1'
sees "$folder/tree/run"
says "sudo non ha dato il permesso"
says "apt-get update && apt-get install --no-install-recommends first-package second-package"

# An installation that fails ends everything, with the same command.
plays sudo <<<'[[ $1 == --validate ]] || exec "$@"'
plays apt-get <<<'exit 100'
sees "$folder/tree/run"
says "L'installazione non è riuscita"
[[ $said != *"Scarico le icone"* ]] || fail "It went on after a failed installation:" "$said"
