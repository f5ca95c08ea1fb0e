#!/bin/sh
# SPDX-License-Identifier: MIT
# check-genicam-root.sh SOURCE_DIR WORK_DIR
# Builds and installs the library against headers in the layout of a genuine GenICam SDK, with
# another release in the name spaces and without this platform's additions. Then uses it in a
# program with only the SDK's runtime.
set -eu
source=$1
work=$2
sdk=$work/sdk/library/CPP/include

fail() { echo "check-genicam-root.sh: $*" >&2; exit 1; }

rm -rf "$work/sdk" "$work/prefix" "$work/host"
mkdir -p "$sdk"
cp -r "$source/platform/genapi/Base" "$source/platform/genapi/GenApi" "$sdk"
find "$sdk" -name '*.cpp' -delete
find "$sdk" -name '*.h' -exec sed -i \
    -e 's/GenApi_3_0/GenApi_3_4/g' -e 's/GenICam_3_0/GenICam_3_4/g' \
    -e '/IsHeldByThisThread/d' {} +

cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DORV_WERROR=ON \
    -DORV_GENICAM_ROOT="$work/sdk" -DORV_PRECOMPILE_HEADERS=ON -DCMAKE_CXX_FLAGS=-O0\ -g0 \
    >"$work/cmake.log" 2>&1 \
    || { cat "$work/cmake.log"; exit 1; }
cmake --build "$work/build"
cmake --install "$work/build" --prefix "$work/prefix" >"$work/install.log"

mkdir -p "$work/host"
cp "$source/platform/genapi/Base/GCException.cpp" "$source/platform/genapi/Base/GCString.cpp" \
    "$source/platform/genapi/GenApi/NodeCallback.cpp" "$work/host"
sed -i -e 's/GenApi_3_0/GenApi_3_4/g' -e 's/GenICam_3_0/GenICam_3_4/g' "$work"/host/*.cpp
cat >"$work/host/main.cpp" <<'EOF'
#include <orvcamconfig.h>
#include <orvgenparamtreeview.h>

#include <QApplication>
#include <QMessageBox>
#include <QTreeView>
#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    OrvGui::OrvGenParamTreeView tree(static_cast<GenApi::INodeMap *>(nullptr), nullptr);
    tree.show();
    if (!tree.treeView())
        return 1;
    const OrvGui::OrvCamConfig window(nullptr);
    const auto *box = window.findChild<QMessageBox *>();
    std::puts(box ? qPrintable(box->text()) : "nothing is said of the missing camera library");
    return 0;
}
EOF
cat >"$work/host/CMakeLists.txt" <<'EOF'
cmake_minimum_required(VERSION 3.21)
project(host LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
find_package(OrvCameraGuiApi 1.3 REQUIRED)
add_library(sdk SHARED GCException.cpp GCString.cpp NodeCallback.cpp)
target_include_directories(sdk PRIVATE "${ORV_GENICAM_ROOT}/library/CPP/include")
add_executable(host main.cpp)
target_link_libraries(host PRIVATE OrvCameraGuiApi::OrvCameraGuiApi sdk)
EOF
cmake -S "$work/host" -B "$work/host/build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_PREFIX_PATH="$work/prefix" >"$work/host.log" 2>&1 \
    && cmake --build "$work/host/build" >>"$work/host.log" 2>&1 \
    || { cat "$work/host.log"; fail "a program cannot be built"; }
QT_QPA_PLATFORM=offscreen "$work/host/build/host" >"$work/said" || fail "the program fails"
grep -q 'no camera library' "$work/said" || fail "the configuration window says: $(cat "$work/said")"

pkgconfig=$(find "$work/prefix" -type d -name pkgconfig)
flags=$(PKG_CONFIG_PATH=$pkgconfig pkg-config --cflags orvcameraguiapi Qt5Widgets)
# shellcheck disable=SC2086 # flags are words
${CXX:-c++} -std=c++17 -fPIC -fsyntax-only $flags "$work/host/main.cpp" \
    || fail "a program cannot be compiled with pkg-config's flags"

# A wrong folder must cause an error at once.
if cmake -S "$source" -B "$work/wrong" -G Ninja -DORV_GENICAM_ROOT="$work/nowhere" \
    >"$work/wrong.log" 2>&1; then
    echo "a folder without headers was accepted"
    exit 1
fi
# CMake wraps long lines of its messages.
if ! tr -s ' \n' ' ' <"$work/wrong.log" | grep -qF "ORV_GENICAM_ROOT is '$work/nowhere'"; then
    echo "the folder was refused without its name:"
    cat "$work/wrong.log"
    exit 1
fi
