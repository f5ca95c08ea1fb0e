#!/bin/sh
# SPDX-License-Identifier: MIT
# build-debian.sh [FOLDER]
# Builds the Debian packages of the committed sources in FOLDER (build/debian), and checks them with
# lintian. Removes the former contents of FOLDER.
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
out=${1:-$root/build/debian}

"$root/packaging/setup-debian.sh"
"$root/packaging/setup-debian.sh" packaging-packages.txt
"$root/packaging/setup-debian.sh" qt6-packages.txt

rm -rf "$out"
mkdir -p "$out/source"
git -C "$root" archive HEAD | tar -x -C "$out/source"
cd "$out/source"
out=$(pwd)/..
log=$out/build.log
dpkg-buildpackage --unsigned-source --unsigned-changes --build=binary >"$log" 2>&1 \
    || { tail -n 40 "$log" >&2; echo "build-debian.sh: the build failed" >&2; exit 1; }
cd "$out"
lintian --fail-on error ./*.changes
ls ./*.deb
