#!/bin/sh
# SPDX-License-Identifier: MIT
# check-genicam-root.sh SOURCE_DIR WORK_DIR
# Compiles the library's own sources against headers laid out like those of a genuine GenICam SDK:
# another release of the name spaces, and nothing that only our headers have.
set -eu
source=$1
work=$2
sdk=$work/sdk/library/CPP/include

rm -rf "$work/sdk"
mkdir -p "$sdk"
cp -r "$source/platform/genapi/Base" "$source/platform/genapi/GenApi" "$sdk"
find "$sdk" -name '*.cpp' -delete
find "$sdk" -name '*.h' -exec sed -i \
    -e 's/GenApi_3_0/GenApi_3_4/g' -e 's/GenICam_3_0/GenICam_3_4/g' \
    -e '/IsHeldByThisThread/d' {} +

cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DORV_WERROR=ON \
    -DORV_GENICAM_ROOT="$work/sdk" -DCMAKE_CXX_FLAGS=-O0\ -g0 >"$work/cmake.log" 2>&1 \
    || { cat "$work/cmake.log"; exit 1; }
cmake --build "$work/build" --target orv_gui_objects

# A wrong folder must be told at once.
if cmake -S "$source" -B "$work/wrong" -G Ninja -DORV_GENICAM_ROOT="$work/nowhere" \
    >"$work/wrong.log" 2>&1; then
    echo "a folder without headers was accepted"
    exit 1
fi
# CMake breaks long lines of its messages.
if ! tr -s ' \n' ' ' <"$work/wrong.log" | grep -qF "ORV_GENICAM_ROOT is '$work/nowhere'"; then
    echo "the folder was refused without its name:"
    cat "$work/wrong.log"
    exit 1
fi
