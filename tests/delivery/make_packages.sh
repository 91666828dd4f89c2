#!/usr/bin/env bash
# Builds the program as it is handed out, and packs it where something is newer than the packages.
# The sanitized build is no use for that: only what users get shows what they lack.
set -euo pipefail
cd "$(dirname "$0")/../.."

[ -f build/release/build.ninja ] || cmake --preset release
cmake --build --preset release

packages=build/release/packages
archive=$(ls $packages/*.tar.gz 2>/dev/null || true)
if [ -f "$archive" ] && [ -f "$(ls $packages/*.deb 2>/dev/null)" ] &&
  [ -z "$(find packaging build/release/{app/corvale-survey,packaging/*.gz,*.mdb,CPackConfig.cmake} \
    -newer "$archive")" ]; then
  echo "The packages are as new as what they hold."
else
  rm -rf $packages
  cpack --preset release
fi
