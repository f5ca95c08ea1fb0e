#!/bin/sh
# SPDX-License-Identifier: MIT
# Cross-compiles for 64-bit ARM in build/arm64, with Debian's compiler and its libraries for arm64,
# and runs the tests in an emulator (qemu-user). Adds the architecture arm64 to this machine's
# packages. Arguments go to ctest.
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
build=$root/build/arm64

die() { echo "arm64.sh: $*" >&2; exit 1; }

"$root/packaging/setup-debian.sh"
if ! dpkg --print-foreign-architectures | grep -qx arm64 \
        && [ "$(dpkg --print-architecture)" != arm64 ]; then
    as_root=
    [ "$(id -u)" = 0 ] || as_root=sudo
    $as_root dpkg --add-architecture arm64
fi
"$root/packaging/setup-debian.sh" arm64-packages.txt

log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORV_WERROR=ON \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-arm64.cmake" >"$log" 2>&1 \
    || { cat "$log" >&2; die "cmake failed"; }
cmake --build "$build" || die "the build failed"

echo "the program, in the emulator:"
QT_QPA_PLATFORM=offscreen qemu-aarch64-static "$build/bin/orvcamconfig" --simulate --list-features \
    --visibility guru >"$log" || die "the program failed"
features=$(wc -l <"$log")
[ "$features" -gt 150 ] || die "the program lists only $features features"
echo "  lists $features features of the simulated camera"

# The emulator may report wrong ids of child processes. A test that kills the id -1 would kill all
# processes, so the tests run in a process namespace of their own.
echo "left out, because they start other programs or make networks, which the emulator gets wrong:"
ctest --test-dir "$build" --show-only -L starts-programs | sed -n 's/.*Test *#[0-9]*: /  /p'
isolate="unshare --pid --fork --kill-child"
[ "$(id -u)" = 0 ] || isolate="$isolate --map-root-user"
$isolate ctest --test-dir "$build" --output-on-failure --timeout 600 -LE starts-programs "$@"
