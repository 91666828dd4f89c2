#!/usr/bin/env bash
# The `another-program` of Windows, for exchange.sh; its lines end in the way of Windows.
set -o pipefail
wine "$(dirname "$0")/../../build/windows/bin/another-program.exe" "$@" | sed 's/\r$//'
