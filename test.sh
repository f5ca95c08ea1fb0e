#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs missing packages, builds, and runs every test: first in the developers' configuration;
# then a short set with Qt 6; then with clang's address and undefined-behaviour sanitizers,
# including a short run of the fuzzers.
# Two tests run at a time: first those over the wire, which must not run beside tests that keep a
# processor busy, then all others. Arguments go to ctest.
#   ORV_PRESET=dev ./test.sh    tests one preset only
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
presets=${ORV_PRESET:-dev qt6 fuzz}

"$root/packaging/setup-debian.sh"
case " $presets " in
*" fuzz "*) "$root/packaging/setup-debian.sh" clang-packages.txt ;;
esac
case " $presets " in
*" qt6 "*) "$root/packaging/setup-debian.sh" qt6-packages.txt ;;
esac

cd "$root"
flags="-O2 -g1 -DNDEBUG"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
failed=
for preset in $presets; do
    echo "test.sh: preset $preset"
    # Backtraces need line numbers only; full debug information doubles the build time.
    cmake --preset "$preset" -DORV_PRECOMPILE_HEADERS=ON -DCMAKE_C_FLAGS_RELWITHDEBINFO="$flags" \
        -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="$flags" >"$log" 2>&1 || { cat "$log" >&2; echo "test.sh: cmake failed" >&2; exit 1; }
    cmake --build --preset "$preset" || { echo "test.sh: the build failed" >&2; exit 1; }
    ctest --preset "$preset" --parallel 2 --label-regex '^wire$' "$@" || failed=yes
    ctest --preset "$preset" --parallel 2 --label-exclude '^wire$' "$@" || failed=yes
    [ -z "$failed" ] || exit 1
done
