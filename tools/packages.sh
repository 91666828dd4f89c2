# Installs what is missing of the packages that are named; quick when nothing is. Sourced by the
# commands at the top of the repository.

build_packages="g++ cmake ninja-build pkg-config libsqlcipher-dev libssl-dev libicu-dev libcsv-dev \
librsvg2-bin qt6-base-dev fonts-dejavu-core fonts-liberation"
package_packages="dpkg-dev file"
bench_packages="libbenchmark-dev"
test_packages="$bench_packages libgtest-dev libgmock-dev clang-format poppler-utils \
$package_packages xvfb xdotool fakeroot desktop-file-utils at-spi2-core dbus \
python3-gi gir1.2-atspi-2.0"
windows_packages="g++-mingw-w64-x86-64-posix wine wine64 nsis tcl make icoutils unzip \
dpkg-dev qt6-base-dev-tools googletest fonts-open-sans"

install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends \
    "${missing[@]}"
}
