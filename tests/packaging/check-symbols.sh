#!/bin/sh
# SPDX-License-Identifier: MIT
# check-symbols.sh LIBRARY SYMBOLS_FILE
# Compares what a library exports with the symbols file of its Debian package. One that is missing in
# the library breaks programs; one that is missing in the file is either an accident or to be added
# to it with the version that brings it (docs/versions.md). Prints the lines that differ.
set -eu
library=$1
symbols=$2
export LC_ALL=C
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The linker marks ends of sections in a library for ARM. The versions themselves are of type A.
"${NM:-nm}" -D --defined-only --with-symbol-versions "$library" | awk '$2 != "A" { print $3 }' |
    sed 's/@@/@/' | grep -vE '^_*(bss_start|bss_end|end)_*(@|$)' | c++filt | sort -u >"$work/exported"
sed -nE 's/^ (\(c\+\+\)"(.*)"|([^ ]*)) [0-9.]+$/\2\3/p' "$symbols" |
    awk -F@ '$1 != $2' | sort -u >"$work/listed"
[ "$(wc -l <"$work/listed")" -ge 50 ] || { echo "$symbols cannot be read" >&2; exit 1; }

if ! diff "$work/listed" "$work/exported" >"$work/differences"; then
    echo "$symbols (<) and $library (>) differ:" >&2
    grep '^[<>]' "$work/differences" >&2
    exit 1
fi
echo "$(wc -l <"$work/exported") names are exported as listed"
