#!/usr/bin/env bash
# Lays the program out as ./run does, and looks at what was built: no library is looked for in the
# current folder, and a fault cannot easily be turned to use.
set -euo pipefail
cd "$(dirname "$0")/../.."

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake --install build/release --component in_place --prefix "$folder" > /dev/null
program=$folder/corvale-survey
[ -f "$folder/CorvaleAnnualOstrel2012.mdb" ]

fail() {
  echo "$*" >&2
  exit 1
}
dynamic=$(readelf -dW "$program")
for file in "$program" build/release/app/corvale-survey; do
  [ -z "$(readelf -dW "$file" | grep -E 'R(UN)?PATH.*(\[:|::|:\]|\[\])')" ] ||
    fail "an empty entry in the search path of $file"
done
grep -q 'BIND_NOW' <<< "$dynamic" || fail "bound while it runs"
grep -q 'GNU_RELRO' <<< "$(readelf -lW "$program")" || fail "its tables stay writable"
grep -q 'Type: *DYN' <<< "$(readelf -hW "$program")" || fail "always at the same place in memory"
symbols=$(readelf --dyn-syms -W "$program")
grep -q '__stack_chk_fail' <<< "$symbols" || fail "no guard on the stack"
# Whether a checked call is left in the program depends on what it calls: so as it was built.
grep -q '_FORTIFY_SOURCE=2.*main.cpp' build/release/compile_commands.json ||
  fail "built without checked calls"

# The department's folder is laid out and works, and is in nothing that users get.
cmake --install build/release --component department --prefix "$folder/department" > /dev/null
grep -q 'No site was chosen in it' \
  <<< "$("$folder/department/survey-collect" check "$folder/CorvaleAnnualOstrel2012.mdb")" ||
  fail "the department's command does not read the template"
for package in build/release/packages/*.tar.gz build/release/packages/*.deb; do
  [ -z "$({ tar -tf "$package" || dpkg -c "$package"; } 2> /dev/null | grep collect)" ] ||
    fail "the department's command is in $package"
done
