#!/bin/sh
# SPDX-License-Identifier: MIT
# update.sh [FOLDER]
# Brings the .ts files here, or copies of them in another folder, up to date with the texts in the
# sources. Then translate what is new with Qt Linguist. Texts are noted without their line numbers,
# so that only a changed text changes a file.
set -eu

root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
folder=$(CDPATH= cd -- "${1:-$root/translations}" && pwd)
lupdate=${LUPDATE:-lupdate}

cd "$root"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
"$lupdate" -silent -locations none -no-obsolete -extensions cpp,ui \
    -I src \
    src apps -ts "$folder"/orvcameraguiapi_*.ts >"$log" 2>&1 </dev/null ||
    { cat "$log" >&2; exit 1; }
# A text without its class would not be found when the program runs. What else lupdate says is about
# C++ that it does not understand.
if grep -e 'without context' -e 'lacks Q_OBJECT' "$log" >&2; then
    exit 1
fi
