#!/usr/bin/env bash
# The `another-program` of Windows, for exchange.sh; its lines end in the way of Windows.
set -o pipefail
root=$(dirname "$0")/../..
"$root/packaging/windows/under_wine.sh" "$root/build/windows/bin/another-program.exe" "$@" | sed 's/\r$//'
