#!/bin/sh
# SPDX-License-Identifier: MIT
# clang-tidy.sh [BUILD_FOLDER [FOLDER...]]
# Runs clang-tidy with the checks of .clang-tidy on the sources in the folders (by default platform,
# src, apps, examples, designer), as compiled in BUILD_FOLDER (build/dev). The build must be up to
# date, because the sources include generated headers.
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
cd "$root"
build=${1:-build/dev}
[ $# -eq 0 ] || shift
[ $# -gt 0 ] || set -- platform src apps examples designer

die() { echo "clang-tidy.sh: $*" >&2; exit 1; }
[ -f "$build/compile_commands.json" ] || die "there is no $build/compile_commands.json"

files=$(mktemp)
trap 'rm -f "$files"' EXIT
# Sources for other configurations are not in the compile commands.
git ls-files -- "$@" | grep '\.cpp$' | while read -r file; do
    if grep -q "\"file\": \"$root/$file\"" "$build/compile_commands.json"; then echo "$file"; fi
done >"$files"
[ -s "$files" ] || die "nothing to check"

log=$build/clang-tidy.log
xargs -n 4 -P "$(nproc)" clang-tidy --quiet -p "$build" \
    --extra-arg=-Wno-unknown-warning-option <"$files" >"$log" 2>&1 || {
    cat "$log"
    die "$(grep -cE '(warning|error):' "$log") findings"
}
echo "clang-tidy: $(wc -l <"$files") files without a finding"
