#!/usr/bin/env bash
# Runs the program before a screen reader: screen_reader.sh PAGE_WINDOW. On a screen and a message
# bus of its own, which nothing outlives.
set -euo pipefail
here=$(dirname "$(readlink -f "$0")")
scratch=$(mktemp -d)
export HOME="$scratch" XDG_RUNTIME_DIR="$scratch/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset "${!QT_@}" WAYLAND_DISPLAY
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 ASAN_OPTIONS=detect_leaks=0  # of the display's library
screen=
clean_up() {
  [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
  rm -rf "$scratch"
}
trap clean_up EXIT
mkfifo "$scratch/screen"
Xvfb -displayfd 3 -noreset -nolisten tcp -screen 0 1366x768x24 3> "$scratch/screen" 2> /dev/null &
screen=$!
read -r number < "$scratch/screen"
export DISPLAY=:$number
dbus-run-session -- /usr/bin/python3 "$here/screen_reader.py" "$1"
