#!/usr/bin/env bash
# Builds the program as it is handed out, and packs it where something is newer than the packages.
# The sanitized build is no use for that: only what users get shows what they lack. Where the newer
# engine is not to be had there is no portable archive.
set -euo pipefail
cd "$(dirname "$0")/../.."

tools/newer_engine.sh
generators="TGZ;DEB"
if [ ! -f build/engine/version ] && ! pkg-config --atleast-version 3.46 sqlcipher; then
  echo "The portable archive is not made: it brings the newer engine."
  generators=DEB
fi
[ -f build/release/build.ninja ] || cmake --preset release
cmake --build --preset release

packages=build/release/packages
package=$(ls $packages/*.deb 2>/dev/null || true)
archive=$(ls $packages/*.tar.gz 2>/dev/null || true)
if [ -f "$package" ] && { [ -f "$archive" ] || [ $generators = DEB ]; } &&
  [ -z "$(find packaging $(ls build/engine/version 2>/dev/null || true) \
    build/release/{app/corvale-survey,packaging/*.gz,*.mdb,CPackConfig.cmake} -newer "$package")" ]; then
  echo "The packages are as new as what they hold."
else
  rm -rf $packages
  cpack --preset release -G "$generators"
fi
