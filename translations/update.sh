#!/bin/sh
# SPDX-License-Identifier: MIT
# update.sh [FOLDER]
# Updates the .ts files, or copies of them in FOLDER, from the texts in the sources. Translate the
# new texts with Qt Linguist afterwards. The files have no line numbers, so they change only with
# the texts.
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
# A text without its class would not be found at run time. lupdate's other warnings are about C++
# that it does not understand.
if grep -e 'without context' -e 'lacks Q_OBJECT' "$log" >&2; then
    exit 1
fi
