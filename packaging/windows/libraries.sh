# The libraries for Windows, built from Debian's source packages. Sourced by ./windows.
#
# Each has a recipe in libraries/ and a folder of its own in the cache, keyed by its recipe, the sums of
# its sources and the toolchain: what changes is built anew, and nothing else.

windows_cache=${XDG_CACHE_HOME:-$HOME/.cache}/corvale-survey/windows
windows_packaging=$PWD/packaging/windows
toolchain=$PWD/cmake/mingw64.cmake
jobs=$(nproc)

# apt-get with lists of its own; the system's settings and lists stay as they are.
own_apt() {
  apt-get -q -o Acquire::Languages=none -o APT::Sandbox::User="$(id -un)" \
    -o Dir::State::lists="$windows_cache/lists" "$@"
}
source_apt() {
  own_apt -o Dir::Etc::sourcelist="$windows_cache/sources.list" -o Dir::Etc::sourceparts=/dev/null "$@"
}

# What the user has to know of a library that cannot be built; nothing else is then told.
not_to_be_had=3
give_up() {
  echo "$*" >&3
  exit $not_to_be_had
}

# Of the mirrors that the system uses itself, that of the security fixes last: some lack what the main
# one has, too. Debian keeps the later store engine among its backports.
refresh_source_lists() {
  local mirror suite keyring=/usr/share/keyrings/debian-archive-keyring.gpg
  [ -z "$(find "$windows_cache/lists/fetched" -mmin -60 2> /dev/null)" ] || return 0
  mkdir -p "$windows_cache/lists/partial"
  own_apt update || true  # of another list than Debian's, perhaps
  own_apt indextargets --format '$(REPO_URI) $(CODENAME)' 'Created-By: Packages' 'Origin: Debian' \
    'Component: main' | sort -ru | while read -r mirror suite; do
    echo "deb-src [signed-by=$keyring] $mirror $suite main"
    [ "$suite" != bookworm ] || echo "deb-src [signed-by=$keyring] $mirror $suite-backports main"
  done > "$windows_cache/sources.list"
  [ -s "$windows_cache/sources.list" ] && source_apt -o APT::Update::Error-Mode=any update ||
    give_up "Debian's mirrors cannot be reached. The libraries are built of sources from there, once."
  touch "$windows_cache/lists/fetched"
}

# Brings the files of a source package that sources.sha256 names into the current folder; options are
# those of `apt-get source`. Gives up where one cannot be had or is not what it was.
fetch_sources() {  # PACKAGE VERSION [OPTION ...]
  local package=$1 version=$2 kept=$windows_cache/sources first
  shift 2
  first=${package}_$version.dsc
  [ "$*" != --tar-only ] || first=${package}_${version%-*}.orig.tar
  mkdir -p "$kept"
  grep " ${package}_" "$windows_packaging/sources.sha256" > sums
  # The sums must be of that version.
  are_there() { grep -qF " $first" sums && (cd "$kept" && sha256sum --check --quiet) < sums; }
  if ! are_there > /dev/null 2>&1; then
    refresh_source_lists
    (cd "$kept" && source_apt source --download-only "$@" "$package=$version") || true
    are_there || give_up "Debian's mirrors do not have the sources of $package $version," \
      "or not those of the sums: see docs/windows.md, Renewing."
  fi
  sed 's/^[0-9a-f]* [ *]//' sums | while read -r file; do ln -s "$kept/$file" .; done
}

# Where the built library lies, or shall lie.
library_prefix() {  # NAME
  local recipe=$windows_packaging/libraries/$1.sh package
  package=$(sed -n 's/^fetch_sources \([^ ]*\).*/\1/p' "$recipe")
  echo "$windows_cache/$1-$({ cat "$recipe" "$toolchain"
    grep " ${package:-none}_" "$windows_packaging/sources.sha256" || true
  } | sha256sum | cut -c 1-12)"
}

# Builds a library where its folder is missing, and links it into build/windows-libraries.
library() {  # NAME
  local name=$1 prefix work status
  prefix=$(library_prefix "$name")
  if [ ! -d "$prefix" ]; then
    echo "$(date +%T) building $name for Windows"
    mkdir -p "$windows_cache"
    work=$(mktemp -d -p "$windows_cache")
    # In a shell of its own, which ends at the first failure; the folder comes under its name when
    # it is whole.
    set +e
    (set -e; cd "$work"; prefix=$work/prefix; . "$windows_packaging/libraries/$name.sh") \
      3>&2 > "$work/log" 2>&1 < /dev/null
    status=$?
    set -e
    if [ "$status" -ne 0 ]; then
      [ "$status" -eq $not_to_be_had ] || tail -n 30 "$work/log" >&2
      echo "$name could not be built: $work/log" >&2
      return 1
    fi
    mv "$work/prefix" "$prefix"
    rm -rf "$work"
  fi
  [ "$(readlink "build/windows-libraries/$name")" != "$prefix" ] || return 0
  mkdir -p build/windows-libraries
  ln -sfn "$prefix" "build/windows-libraries/$name"
  rm -f build/windows/CMakeCache.txt  # which remembers where the last one lay
}
