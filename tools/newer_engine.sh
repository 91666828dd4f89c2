#!/usr/bin/env bash
# Debian 12 carries an old store engine, and a newer one among its backports. This fetches and
# unpacks the newer one into build/engine, for the tests and for the portable archive: nothing is
# installed, and the system's own package sources stay as they are. Looked after once a day.
# Where there is nothing to fetch, this says why and succeeds.
set -euo pipefail
cd "$(dirname "$0")/.."
place=$PWD/build/engine
. /etc/os-release

[ "${ID:-} ${VERSION_ID:-}" = "debian 12" ] || exit 0  # newer ones carry the newer engine
[ -z "$(find "$place/fetched" -mtime 0 2>/dev/null)" ] || exit 0

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch"/{lists,cache/archives,system}/partial
apt() { apt-get -q -o Acquire::Languages=none -o Dir::Cache="$scratch/cache" "$@" >> "$scratch/log" 2>&1; }
ours=(-o Dir::Etc::sourcelist="$scratch/sources.list" -o Dir::Etc::sourceparts=/dev/null
  -o Dir::State::lists="$scratch/lists" -o APT::Sandbox::User="$(id -un)")

# The mirror that the system uses itself, as its lists know it, or lists fetched for the question.
mirrors() {
  apt-get indextargets --format '$(REPO_URI)' "$@" 'Created-By: Packages' 'Origin: Debian' \
    "Codename: $VERSION_CODENAME" 'Component: main' 2>/dev/null | sort -u
}

fetch() {
  local mirror asked=(-o Dir::State::lists="$scratch/system" -o APT::Sandbox::User="$(id -un)")
  mirror=$(mirrors)
  if [ -z "$mirror" ]; then
    apt "${asked[@]}" update || true
    mirror=$(mirrors "${asked[@]}")
  fi
  [ -n "$mirror" ] || return 1
  sed "s|.*|deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] & $VERSION_CODENAME-backports main|" \
    <<< "$mirror" > "$scratch/sources.list"
  apt "${ours[@]}" update || return 1
  (cd "$scratch" && apt "${ours[@]}" download libsqlcipher1) || return 1
  dpkg-deb -x "$scratch"/libsqlcipher1_*.deb "$scratch/unpacked" || return 1
  # Read by the list of what lies inside the archive; also the last to be written.
  dpkg-deb -f "$scratch"/libsqlcipher1_*.deb Version > "$scratch/unpacked/version"
}

if fetch && cmp -s "$scratch/unpacked/version" "$place/version"; then
  touch "$place/fetched"
elif [ -f "$scratch/unpacked/version" ]; then
  rm -rf "$place"
  mkdir -p build
  mv "$scratch/unpacked" "$place"
  touch "$place/fetched"
  echo "The newer store engine is $(cat "$place/version"), in build/engine."
elif [ -f "$place/version" ]; then
  echo "No newer store engine could be looked for; the one of $(cat "$place/version") stays." >&2
else
  echo "The newer store engine of Debian's backports cannot be had:" >&2
  grep -E '^[EW]:' "$scratch/log" >&2 || echo "no mirror of Debian is among the package sources." >&2
fi
