#!/usr/bin/env bash
# Unpacks the portable archive, starts it and works with it: all it needs is in its folder, and all
# it writes but the user's settings.
set -euo pipefail
archive=$(ls "$(dirname "$0")"/../../build/release/packages/*.tar.gz 2>/dev/null) || {
  echo "Not tested: there is no portable archive without the newer engine"
  exit 77
}
. "$(dirname "$0")/desktop.sh"

place="$scratch/a stick"
mkdir "$place"
tar -xzf "$archive" -C "$place"
folder=$(echo "$place"/*)
[ -d "$folder" ] || fail "the archive holds more than one folder: $(ls "$place")"
files "$folder" > "$scratch/before"
[ -e "$folder/lib/libsqlcipher.so.1" ] || fail "the archive brings an old engine"

start "$folder/corvale-survey"
# From the system: the C and C++ libraries, and, where there is one, the theme of the mouse pointer.
foreign=$(sed -E 's/^([^ ]+ +){5}//' "/proc/$pid/maps" | grep -F .so | grep -vF "$folder/" | sort -u |
  grep -vE '/(ld-linux[^/]*|lib(c|m|dl|pthread|resolv|rt|util|nss_[a-z]+)[.]so[.0-9]*|gconv/[^/]+)$' |
  grep -vE '/lib(stdc[+][+]|gcc_s|Xcursor|Xfixes|Xrender)[.]so[.0-9]*$' || true)
[ -z "$foreign" ] || fail "libraries that the archive does not bring along: $foreign"
make_database 'Harbour Road'
stop
cmp "$folder/$template" "$folder/Data2012/Harbour Road.mdb"

start "$folder/corvale-survey"
open_database
stop

files "$folder" | diff "$scratch/before" - > "$scratch/new" || true
[ "$(cat "$scratch/new")" = "$(printf '1a2,3\n> ./Data2012/%s\n> ./Data2012/Harbour Road.mdb' \
  "$(backup 'Harbour Road')")" ] ||
  fail "the folder changed: $(cat "$scratch/new")"
[ "$(files "$HOME" | grep -v '^./.cache/')" = './.config/Corvale/Corvale Annual Survey.ini' ] ||
  fail "files in the user's folder: $(files "$HOME")"
