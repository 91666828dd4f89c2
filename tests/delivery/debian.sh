#!/usr/bin/env bash
# Installs the Debian package below a scratch root, starts it, works with it, brings a newer
# template and removes it again. The machine's own packages stay as they are.
set -euo pipefail
package=$(realpath "$(dirname "$0")"/../../build/release/packages/*.deb)
. "$(dirname "$0")/desktop.sh"
PATH=$PATH:/usr/sbin:/sbin  # of a user who is not root

root=$scratch/root
mkdir -p "$root/var/lib/dpkg/"{info,updates,triggers}
touch "$root/var/lib/dpkg/status"
dpkg_there() { fakeroot dpkg --root="$root" --force-depends --log=/dev/null "$@" 2>> "$scratch/dpkg"; }

apt-get install --simulate --no-install-recommends "$package" > /dev/null ||
  fail "the package asks for what there is not"
dpkg_there --install "$package" > /dev/null || fail "$(cat "$scratch/dpkg")"
desktop-file-validate "$root"/usr/share/applications/*.desktop
[ -f "$root/usr/share/icons/hicolor/48x48/apps/corvale-survey.png" ]
files "$root/usr" > "$scratch/before"

program=$root/usr/bin/corvale-survey
installed=$root/usr/lib/corvale-survey/$template
own=$HOME/.local/share/corvale-survey
refused() { timeout 20 "$@" 2> /dev/null & pid=$!; wait_for 'Corvale Annual Survey'; stop; }
lay_out() { "$program" -platform offscreen --help > /dev/null; }

refused env -u HOME "$program"
mkdir -p "$HOME/.local"
echo "in the way" > "$HOME/.local/share"
refused "$program"
rm "$HOME/.local/share"

start "$program"
make_database 'Harbour Road'
stop
cmp "$installed" "$own/Data2012/Harbour Road.mdb"
cp "$own/Data2012/Harbour Road.mdb" "$scratch/kept"

echo "of the department" > "$own/$template"
lay_out
[ "$(cat "$own/$template")" = "of the department" ] || fail "an older template came back"
touch -d '1 minute' "$installed"
lay_out
cmp "$installed" "$own/$template"

start "$program"
open_database
stop

[ "$(files "$own")" = "$(printf './%s\n./Data2012/%s\n./Data2012/Harbour Road.mdb' $template \
  "$(backup 'Harbour Road')")" ] ||
  fail "files in the user's program folder: $(files "$own")"
files "$root/usr" | diff "$scratch/before" - || fail "the installed program changed"
[ -z "$(dpkg_there --verify corvale-survey)" ] || fail "installed files changed"
dpkg_there --remove corvale-survey > /dev/null || fail "$(cat "$scratch/dpkg")"
[ ! -e "$root/usr/lib/corvale-survey" ] || fail "left behind: $(files "$root/usr")"
cmp "$scratch/kept" "$own/Data2012/Harbour Road.mdb"
