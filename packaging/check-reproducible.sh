#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the Debian packages of the committed sources twice, in folders of different names, at
# different times, in different time zones and languages. Fails unless all files are identical. The
# packages are left in build/reproducible.
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
first=$root/build/reproducible/first
second=$root/build/reproducible/the-second-of-them

(umask 022 && TZ=UTC LC_ALL=C "$root/packaging/build-debian.sh" "$first")
(umask 002 && TZ=Asia/Tokyo LC_ALL=C.UTF-8 "$root/packaging/build-debian.sh" "$second") >/dev/null

different=0
count=0
for package in "$first"/*.deb; do
    name=$(basename -- "$package")
    count=$((count + 1))
    cmp -s "$package" "$second/$name" && continue
    different=$((different + 1))
    echo "$name differs, in these files:" >&2
    for folder in "$first" "$second"; do
        rm -rf "$folder/contents"
        dpkg-deb --raw-extract "$folder/$name" "$folder/contents"
    done
    diff -rq "$first/contents" "$second/contents" >&2 || true
done
[ "$count" -ge 5 ] || { echo "check-reproducible.sh: only $count packages" >&2; exit 1; }
[ "$different" = 0 ] || exit 1
echo "$count packages are the same bit for bit"
