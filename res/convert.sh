#!/bin/sh
# SPDX-License-Identifier: MIT
# Creates the icons and pictures of the library from the SVG drawings in this folder. Run it after a
# change of a drawing and commit the results, so that building needs no converter. The pictures are
# for hosts; the dialogs draw theirs (src/camconfig/diagramdrawing.cpp). Needs the Debian packages
# librsvg2-bin, icoutils, netpbm and fonts-dejavu-core.
set -eu

here=$(CDPATH= cd -- "$(dirname -- "$0")" && pwd)
for tool in rsvg-convert icotool pngtopam ppmtobmp; do
    command -v "$tool" >/dev/null || { echo "convert.sh: $tool is missing" >&2; exit 1; }
done
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# The largest size first, because QPixmap uses the first one.
icon() {
    set -- "$1"
    for size in 128 64 48 32 24 16; do
        rsvg-convert -w "$size" -h "$size" "$here/$1.svg" -o "$scratch/$size.png"
        set -- "$@" --raw="$scratch/$size.png"
    done
    name=$1
    shift
    icotool --create --output="$here/$name.ico" "$@"
}

picture() {
    rsvg-convert "$here/$1.svg" -o "$scratch/picture.png"
    pngtopam -mix -background=white "$scratch/picture.png" | ppmtobmp -quiet >"$here/$1.bmp"
}

for name in orvicon connected disconnected frameab trigger pulse strobe dataout color redball \
            greenball; do
    icon "$name"
done
for name in pulseimage strobeBothExp strobeBothRead strobe1Exp_strobe2Read \
            strobe1Read_strobe2Exp wdr; do
    picture "$name"
done
