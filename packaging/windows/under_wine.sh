#!/usr/bin/env bash
# Runs a program of Windows and then says what it said. Wine leaves its desktop and its services running
# for a while; they must not hold our own output, or whoever reads it waits for them.
said=$(mktemp -d)
trap 'rm -rf "$said"' EXIT
status=0
wine "$@" > "$said/out" 2> "$said/errors" || status=$?
cat "$said/out"
cat "$said/errors" >&2
exit $status
