#!/usr/bin/env bash
# Unpacks the archive for Windows below a name that is not ASCII and does the main job there; runs the
# installer, starts what it installed, installs anew, and uninstalls. The databases stay.
set -euo pipefail
build=$(realpath "$(dirname "$0")/../../build/windows")
. "$(dirname "$0")/desktop.sh"
export WINEPREFIX=$scratch/wine
trap 'wineserver -k || true; clean_up' EXIT
cp -a "$build/wine" "$WINEPREFIX"

place="$scratch/tmp/Prüfung und Übung"
mkdir "$place"
unzip -q "$build"/packages/*.zip -d "$place"
folder=$(echo "$place"/*)
[ -d "$folder" ] || fail "the archive holds more than one folder: $(ls "$place")"
[ -s "$folder/licences/versions.txt" ] || fail "the archive does not say what lies inside"

start wine "$folder/corvale-survey.exe"
make_database 'Harbour Road'
stop
cmp "$folder/$template" "$folder/Data2012/Harbour Road.mdb"
start wine "$folder/corvale-survey.exe"
open_database
stop
[ -f "$folder/Data2012/$(backup 'Harbour Road')" ] || fail "no copy: $(files "$folder/Data2012")"

# With the libraries of the archive alone.
rm -rf "$build/tour"
cp "$build/bin/tour.exe" "$build/bin/Qt6Test.dll" "$folder"
wine "$folder/tour.exe" "$build/tour" "$folder/$template" > "$build/toured" 2>&1 ||
  fail "$(cat "$build/toured")"

installer=$(echo "$build"/packages/*-setup.exe)
wine "$installer" /S
installed=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Local/Programs/"Corvale Annual Survey 2012")
shortcuts() { find "$WINEPREFIX/drive_c/users" -name 'Corvale*.lnk' | wc -l; }
diff <(cd "$folder" && find . -type f ! -path './Data2012/*' ! -name tour.exe ! -name Qt6Test.dll | sort) \
  <(cd "$installed" && find . -type f ! -name uninstall.exe | sort) || fail "not all is installed"
[ "$(shortcuts)" = 2 ] || fail "the program does not stand in the menu and on the desktop"
start wine "$installed/corvale-survey.exe"
make_database 'Harbour Road'
stop
wine "$installer" /S
wine "$installed/uninstall.exe" /S  # ends at once, and a copy of it goes on
kept='./Data2012/Harbour Road.mdb'
for _ in $(seq 300); do
  [ "$(files "$installed")" = "$kept" ] && [ "$(shortcuts)" = 0 ] && break
  sleep 0.1
done
[ "$(files "$installed")" = "$kept" ] || fail "left behind, or lost: $(files "$installed")"
[ "$(shortcuts)" = 0 ] || fail "the menu still shows it"
