# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# What run and test have in common: packages, icon sets, configuring and building. Sourced with $root set.

say() {
  printf '%s\n' "$*" >&2
}

die() {
  say "$@"
  exit 1
}

# The version of CMakeLists.txt.
product_version() {
  sed -n 's/^project(abissora VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt"
}

# Seconds since 1970 of the last commit, for whatever carries a time; the environment may give another one.
source_date() {
  printf '%s\n' "${SOURCE_DATE_EPOCH:-$(git -C "$root" log -1 --format=%ct)}"
}

# Prints the packages of the given lists that are not installed.
missing_packages() {
  local list package command installed wanted=()
  for list in "$@"; do
    while read -r package command; do
      [[ -z $package || $package == '#'* ]] && continue
      [[ -n $command ]] && command -v "$command" >/dev/null && continue
      wanted+=("$package")
    done <"$root/scripts/packages/$list"
  done
  # dpkg-query also fails where it knows only some of the names.
  installed=$'\n'$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true)$'\n'
  for package in "${wanted[@]}"; do
    [[ $installed == *$'\n'"$package installed"$'\n'* ]] || printf '%s\n' "$package"
  done
}

# install_packages LIST...
install_packages() {
  if ! command -v dpkg-query >/dev/null; then
    say "Questo sistema non usa i pacchetti Debian: ciò che è elencato in scripts/packages va installato a mano."
    return
  fi
  local packages as_root=()
  mapfile -t packages < <(missing_packages "$@")
  ((${#packages[@]})) || return 0

  local by_hand="apt-get update && apt-get install --no-install-recommends ${packages[*]}"
  if ((EUID != 0)); then
    command -v sudo >/dev/null ||
      die "Mancano dei pacchetti e sudo non c'è. Eseguire come amministratore:" $'\n'"  $by_hand"
    sudo --validate ||
      die "Mancano dei pacchetti e sudo non ha dato il permesso. Eseguire come amministratore:" $'\n'"  $by_hand"
    as_root=(sudo)
  fi
  say "Installo ${#packages[@]} pacchetti e ciò che a loro volta richiedono: ${packages[*]}"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get -qq -y -o DPkg::Lock::Timeout=120)
  saying_while "Aspetto l'elenco dei pacchetti ($(package_servers))…" "${apt[@]}" update ||
    say "L'elenco dei pacchetti non si aggiorna: provo con quello che c'è."
  # The exit status is that of apt-get, the last one that failed in the pipe.
  "${apt[@]}" -o APT::Status-Fd=1 install --no-install-recommends "${packages[@]}" </dev/null | show_progress ||
    die "L'installazione non è riuscita. Eseguire come amministratore:" $'\n'"  $by_hand"
}

# The servers that packages come from, as apt's lists name them.
package_servers() {
  local servers
  servers=$(apt-get indextargets --format '$(SITE)' 2>/dev/null | sort -u | paste -sd ' ')
  printf '%s\n' "${servers:-i server dei pacchetti}"
}

# show_progress reads what apt-get writes to APT::Status-Fd and tells every tenth of downloading and installing.
show_progress() {
  local kind percent told='' step rest
  while IFS=: read -r kind rest percent rest; do
    case $kind in
      dlstatus) kind="Scarico i pacchetti" ;;
      pmstatus) kind="Installo i pacchetti" ;;
      *) continue ;;
    esac
    step="$kind: $((${percent%%.*} / 10 * 10)) %"
    [[ $step == "$told" ]] || say "  $step"
    told=$step
  done
}

# saying_while SENTENCE COMMAND...   says the sentence whenever another ten seconds have gone by; the status is that of
# the command.
saying_while() {
  local sentence=$1 answer status=1 read_status
  shift
  exec {answer}< <("$@" >&2 </dev/null && status=0 || status=$?; printf '%s\n' "$status")
  while true; do
    read -r -t "${ABISSORA_PATIENCE:-10}" -u "$answer" status && break
    read_status=$?
    ((read_status > 128)) || break # the command was killed and left no answer
    say "$sentence"
  done
  exec {answer}<&-
  return "$status"
}

# The icon sets in exactly the versions of package-lock.json. A copy of the lock file says what is installed;
# npm ci starts by removing node_modules, so an interrupted installation leaves none.
install_icon_sets() {
  local lock=$root/package-lock.json installed=$root/node_modules/.installed-lock.json
  cmp -s "$lock" "$installed" && return
  local registry
  registry=$(cd "$root" && npm config get registry 2>/dev/null || true)
  say "Scarico le icone…"
  (cd "$root" && saying_while "Aspetto le icone ($registry)…" \
    npm ci --ignore-scripts --no-audit --no-fund --loglevel=error) ||
    die "Le icone non sono state installate; la ragione è scritta qui sopra."
  cp "$lock" "$installed"
}

# configure PRESET [options for the first time]
configure() {
  local preset=$1 generated=$root/build/$1/build.ninja
  shift
  if [[ ! -e $generated ]]; then
    say "Preparo la compilazione ($preset)…"
    (cd "$root" && cmake --preset "$preset" --log-level=WARNING "$@" >/dev/null)
  elif [[ $root/CMakePresets.json -nt $generated || $root/node_modules/.installed-lock.json -nt $generated ]]; then
    (cd "$root" && cmake --preset "$preset" --log-level=WARNING >/dev/null)
  fi
}

# build PRESET [target]; says nothing when everything is up to date.
build() {
  local folder=$root/build/$1 target=${2:-all}
  [[ $(ninja -C "$folder" -n "$target" 2>&1) == *'no work to do'* ]] && return
  say "Compilo ($1)…"
  cmake --build "$folder" --target "$target" --parallel "$(nproc)" >&2
}

# A bare container has neither a locale in UTF-8 nor a folder for sockets, and the toolkit complains about both.
complete_environment() {
  if [[ $(locale charmap 2>/dev/null) != UTF-8 ]]; then
    if [[ -n ${LC_ALL:-} ]]; then
      export LC_ALL=C.UTF-8
    else
      export LC_CTYPE=C.UTF-8
    fi
  fi
  if [[ -z ${XDG_RUNTIME_DIR:-} ]]; then
    local folder
    folder=${TMPDIR:-/tmp}/runtime-$(id -un)
    mkdir -m 700 "$folder" 2>/dev/null || true
    if [[ -O $folder && ! -L $folder ]]; then
      chmod 700 "$folder"
      export XDG_RUNTIME_DIR=$folder
    fi
  fi
}
