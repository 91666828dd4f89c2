#!/usr/bin/env bash
# Makes what is handed out for Windows of what is built: the archive, the installer of the same folder,
# and the sources of Qt, which its licence asks for.
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/windows/libraries.sh
packages=$PWD/build/windows/packages
rm -rf "$packages"
cpack --preset windows > build/windows/packed || {
  cat build/windows/packed
  exit 1
}
name=$(basename "$packages"/*.zip -x86_64.zip)  # corvale-survey-14.0-windows
version=${name#corvale-survey-}
version=${version%-windows}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
unzip -q "$packages/$name-x86_64.zip" -d "$scratch"
makensis -V2 -DVERSION="$version" -DFOLDER="$(echo "$scratch"/*)" \
  -DICON="$PWD/build/windows/pictures/program.ico" -DOUT="$packages/$name-x86_64-setup.exe" \
  packaging/windows/installer.nsi

# As they were fetched, with the recipe by which the DLLs are made of them.
sed -n 's/^[0-9a-f]* [ *]\(qt6-base_.*\)/\1/p' packaging/windows/sources.sha256 |
  tar cf "$packages/$name-sources.tar" --transform "s|^|$name-sources/|" \
    -C "$windows_cache/sources" --files-from - \
    -C "$PWD/packaging/windows" libraries.sh libraries/qt.sh sources.sha256 \
    -C "$PWD/cmake" mingw64.cmake
ls -l "$packages" | awk 'NF > 8 { print $5, $9 }'
