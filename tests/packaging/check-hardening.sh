#!/bin/sh
# SPDX-License-Identifier: MIT
# check-hardening.sh BUILD_DIR FORTIFIED
# Checks that every program, library and object file of a build is hardened. FORTIFIED is 0 in
# builds without fortified functions.
set -eu
build=$1
fortified=$2
readelf=${READELF:-readelf}
export LC_ALL=C
failures=$(mktemp)
trap 'rm -f "$failures"' EXIT

missing() { echo "$1: $2" >>"$failures"; }

# Prints the existing outputs of the build rules of that name. Other files may be left from earlier
# builds.
made() {
    ninja -C "$build" -t targets all | sed -nE "s/^(.*): (C|CXX)_($1)__.*/\1/p" | while read -r file; do
        [ ! -f "$build/$file" ] || echo "$build/$file"
    done
}

checkLinked() {
    file=$1
    headers=$("$readelf" -hldW "$file")
    has() { echo "$headers" | grep -qE "$1" || missing "$file" "$2"; }
    has 'Type: *DYN' 'is loaded at a fixed address'
    has 'GNU_STACK.* RW ' 'has an executable stack'
    has 'GNU_RELRO' 'is not RELRO'
    has 'FLAGS_1.*NOW' 'is not BIND_NOW'
    echo "$headers" | sed -n 's/.*R\(UN\)\{0,1\}PATH).*\[\(.*\)\]$/\2:/p' | tr ':' '\n' |
        grep -vE '^(/|\$ORIGIN(/|$))' | grep -q . && missing "$file" 'searches a relative folder'
    echo "$headers" | grep -qE 'R(UN)?PATH.*(\[:|::|:\])|R(UN)?PATH.*\[\]' \
        && missing "$file" 'searches the current folder: an element of its RUNPATH is empty'
    linked=$((linked + 1))
}

linked=0
for file in $(made '[A-Z]*_LINKER'); do
    checkLinked "$file"
done
[ "$linked" -ge 4 ] || missing "$build" "has only $linked programs and libraries"

# Not every file contains calls that are fortified or protected; these files are large enough.
for file in $(made '[A-Z]*_LINKER' | grep -E '/(libOrvCamera[^/]*\.so\.[^/]*|orvcamconfig)$'); do
    symbols=$("$readelf" --dyn-syms -W "$file")
    echo "$symbols" | grep -q 'UND __stack_chk_fail' || missing "$file" 'has no stack protector'
    case $file in
    *libOrvCameraApi*) [ "$fortified" = 0 ] || echo "$symbols" | grep -qE 'UND __[a-z]+_chk@' \
        || missing "$file" 'calls no fortified function' ;;
    esac
done

# Checks the object files, because the linker drops the mark of a file if the C library's part has
# none.
objects=0
for file in $(made COMPILER | grep -vE '\.[gp]ch$'); do # no precompiled headers
    machine=$("$readelf" -hnW "$file")
    case $machine in
    *X86-64*IBT*SHSTK* | *AArch64*BTI*PAC*) ;;
    *X86-64* | *AArch64*) missing "$file" 'branches are not protected' ;;
    esac
    objects=$((objects + 1))
done
[ "$objects" -ge 50 ] || missing "$build" "has only $objects object files"

if [ -s "$failures" ]; then
    cat "$failures" >&2
    exit 1
fi
echo "$linked programs and libraries and $objects object files are hardened"
