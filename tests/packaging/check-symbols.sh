#!/bin/sh
# SPDX-License-Identifier: MIT
# check-symbols.sh LIBRARY SYMBOLS_FILE
# Compares the exports of a library with the symbols file of its Debian package and prints the
# differences. A symbol that is missing in the library breaks programs. A symbol that is missing in
# the file is an accident, or must be added with the version that introduces it (docs/versions.md).
set -eu
library=$1
symbols=$2
export LC_ALL=C
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# On ARM the linker exports symbols for the ends of sections. Symbols of type A are the versions.
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
