#!/bin/sh
# SPDX-License-Identifier: MIT
# setup-debian.sh [LIST]
# Installs missing packages from a list in the folder of this script (debian-packages.txt). Does
# nothing if all are installed.
set -eu

say() { echo "setup: $*" >&2; }
die() { say "$*"; exit 1; }

list=${1:-debian-packages.txt}
here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)

command -v dpkg-query >/dev/null 2>&1 || die "this is not a Debian system: dpkg-query is missing"

# The package may be part of another one in a later Debian release.
is_installed() {
    status=$(dpkg-query -W -f '${Status}' "$1" 2>/dev/null || true)
    [ "$status" = "install ok installed" ] && return 0
    dpkg-query -W -f '${Status}, ${Provides},\n' | grep -q "^install ok installed,.* $1[ ,]"
}

missing=
for package in $(grep -v '^#' "$here/$list"); do
    is_installed "$package" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if [ "$(id -u)" = 0 ]; then
    as_root=
elif command -v sudo >/dev/null 2>&1; then
    as_root=sudo
else
    die "these packages are missing, and neither root nor sudo is at hand:$missing"
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
say "installing$missing"
export DEBIAN_FRONTEND=noninteractive
# Unsigned or unreachable third-party sources are ignored: all packages are Debian's own.
$as_root apt-get update >"$log" 2>&1 || true
# shellcheck disable=SC2086
if ! $as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y --no-install-recommends $missing >>"$log" 2>&1; then
    tail -n 15 "$log" >&2
    die "apt-get could not install:$missing"
fi
