# What the tests of both packages share. Sourced; each test runs on a screen of its own, as a user
# who has never started the program, in a folder that is thrown away.

template=CorvaleAnnualOstrel2012.mdb
scratch=$(mktemp -d)
export HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/runtime" TMPDIR="$scratch/tmp"
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR" "$TMPDIR"
# Nothing of the desktop that the tests are started from, nor a session bus: where none runs, some
# machines would start one, and leave its folder in the user's.
unset "${!XDG_DATA@}" "${!XDG_CONFIG@}" "${!XDG_CURRENT@}" "${!QT_@}" LD_LIBRARY_PATH WAYLAND_DISPLAY
export DBUS_SESSION_BUS_ADDRESS=disabled:
pid=
screen=

clean_up() {
  [ -z "$pid" ] || kill "$pid" 2>/dev/null || true
  [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
  rm -rf "$scratch"
}
trap clean_up EXIT

# It picks a number that no other screen has, and does not start anew when nobody is looking.
Xvfb -displayfd 3 -noreset -nolisten tcp -screen 0 1366x768x24 3> "$scratch/screen" 2> /dev/null &
screen=$!
until [ -s "$scratch/screen" ]; do kill -0 $screen; sleep 0.1; done
DISPLAY=:$(cat "$scratch/screen")
export DISPLAY

fail() {
  echo "$*" >&2
  exit 1
}

# Files below a folder, one a line, in order.
files() { (cd "$1" && find . ! -type d | sort); }

# Where the copy of a database lies that was opened today.
backup() { echo "Backups/$1 $(date +%F).mdb"; }

start() {
  (cd "$scratch/tmp" && exec "$@") &
  pid=$!
  wait_for 'Corvale Annual Survey 2012 (Ostrel)'
}

# Waits for the window of that caption and gives it the keyboard.
wait_for() {
  local window
  for _ in $(seq 300); do
    kill -0 "$pid" 2>/dev/null || fail "the program ended before it showed \"$1\""
    for window in $(xdotool search --onlyvisible --name . 2>/dev/null || true); do
      if [ "$(xdotool getwindowname "$window")" = "$1" ]; then
        xdotool windowfocus --sync "$window"
        return
      fi
    done
    sleep 0.1
  done
  fail "no window \"$1\""
}

# From the first window: makes a database of that name. Ends at the choice of a site.
make_database() {
  xdotool key Tab space space  # Start a New Database, Continue
  wait_for 'Create New Database'
  xdotool type "$1"
  xdotool key Tab space  # OK
  wait_for 'Select college or campus to add data'
}

# From the first window: opens the only database in the list.
open_database() {
  xdotool key space Tab Tab space space  # Use an Existing Database, the list, Continue
  wait_for 'Select college or campus to add data'
}

stop() {
  kill "$pid"
  wait "$pid" 2>/dev/null || true
  pid=
}
