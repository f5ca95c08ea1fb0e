#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs missing packages, builds, and opens the program on a simulated camera. Without a display
# it saves PNG pictures of the windows in build/demo/pictures and prints their paths.
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
build=$root/build/demo

die() { echo "demo.sh: $*" >&2; exit 1; }

"$root/packaging/setup-debian.sh"
if [ -z "${DISPLAY:-}" ] && [ -n "${WAYLAND_DISPLAY:-}" ]; then
    "$root/packaging/setup-debian.sh" wayland-packages.txt
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DORV_BUILD_TESTS=OFF \
    -DORV_BUILD_BENCHMARKS=OFF >"$log" 2>&1 || { cat "$log" >&2; die "cmake failed"; }
cmake --build "$build" || die "the build failed"

program=$build/bin/orvcamconfig
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$program" --simulate
fi

pictures=$build/pictures
mkdir -p "$pictures"
picture() {
    file=$pictures/$1.png
    shift
    rm -f "$file"
    xvfb-run -a -s "-screen 0 1600x1200x24 -nolisten tcp" "$program" "$@" --screenshot "$file" \
        2>"$log" || { cat "$log" >&2; die "the program failed"; }
    echo "$file"
}
echo "There is no display; these are pictures of the windows:"
picture picker --simulate --window picker --camera SIM-0001
picture main-window --simulate --window main
for dialog in frames trigger pulse strobe output color about; do
    picture "$dialog" --simulate --window "$dialog"
done
picture features --simulate --visibility guru
