#!/usr/bin/env bash
# exchange.sh ONE OTHER: two builds of `another-program`, each with an engine or a system of its own.
# What one saves the other reads whole and saves on, and what a killed one leaves the other takes back
# alike.
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
fail() {
  echo "$*" >&2
  exit 1
}
save() { "$1" save "$2" "$3" 0 all "$4" > /dev/null; }  # PROGRAM FILE DISK_CALL VERSION
alike() { cmp "$1" "$2" || fail "$3"; }

continue_after() {  # ONE OTHER
  local call journals=0
  rm -rf ./*
  mkdir one other
  save "$1" site.mdb 0 1
  "$1" rows site.mdb > saved
  [ "$(wc -l < saved)" -gt 1000 ] || fail "hardly a row was saved"
  "$2" rows site.mdb | alike saved - "the rows of the other engine"

  save "$2" site.mdb 0 2
  "$2" rows site.mdb > changed
  ! cmp -s saved changed || fail "nothing was changed"
  "$1" rows site.mdb | alike changed - "the rows that the other engine has changed"

  for call in 9 30 100 300; do
    cp site.mdb killed.mdb
    { save "$1" killed.mdb $call 3; } 2> /dev/null && fail "was not killed"
    [ ! -s killed.mdb-journal ] || journals=$((journals + 1))
    for place in one other; do cp killed.mdb* $place; done
    "$1" rows one/killed.mdb > after
    "$2" rows other/killed.mdb | alike after - "the rows after a kill at call $call"
    alike one/killed.mdb other/killed.mdb "the file after a kill at call $call"
    [ "$(ls one other)" = "$(printf 'one:\nkilled.mdb\n\nother:\nkilled.mdb')" ] || fail "$(ls one other)"
    rm killed.mdb*
  done
  [ $journals -gt 2 ] || fail "only $journals kills have left a journal"
}

continue_after "$1" "$2"
continue_after "$2" "$1"
