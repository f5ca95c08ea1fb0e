#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what is missing, builds and runs every test. Arguments go to ctest.
#   ORV_PRESET=asan ./test.sh    tests another preset than dev
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
preset=${ORV_PRESET:-dev}

"$root/packaging/setup-debian.sh"

cd "$root"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset "$preset" >"$log" 2>&1 || { cat "$log" >&2; echo "test.sh: cmake failed" >&2; exit 1; }
cmake --build --preset "$preset" || { echo "test.sh: the build failed" >&2; exit 1; }
ctest --preset "$preset" "$@"
