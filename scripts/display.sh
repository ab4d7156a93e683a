# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Tells whether a window can be shown. A variable alone is no proof: it outlives its server in a shell left open.

has_wayland() {
  local socket=${WAYLAND_DISPLAY:-}
  [[ -n $socket ]] || return
  [[ $socket == /* ]] || socket=${XDG_RUNTIME_DIR:-}/$socket
  [[ -S $socket ]]
}

# DISPLAY is [host]:number[.screen]; without a host, or with the host "unix", it is a socket of this machine.
has_x11() {
  [[ ${DISPLAY:-} =~ ^(.*):([0-9]+)(\.[0-9]+)?$ ]] || return
  local host=${BASH_REMATCH[1]} number=${BASH_REMATCH[2]}
  if [[ -z $host || $host == unix ]]; then
    [[ -S /tmp/.X11-unix/X$number ]] || grep -qs "@/tmp/.X11-unix/X$number\$" /proc/net/unix
  else
    timeout 3 bash -c ': <>"/dev/tcp/$0/$1"' "$host" "$((6000 + number))" 2>/dev/null
  fi
}

has_display() {
  has_wayland || has_x11
}
