#!/bin/sh
# SPDX-License-Identifier: MIT
# check-subproject.sh SOURCE_DIR WORK_DIR
# Builds the libraries as a part of another project, whose own settings must not change. Compiles
# that project's program, but not the libraries.
set -eu
source=$1
work=$2
fail() { echo "check-subproject.sh: $*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work/host"
cat >"$work/host/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.21)
project(host LANGUAGES C CXX)
enable_testing()
option(BUILD_TESTING "the host's own" ON)
set(CMAKE_INSTALL_LIBDIR own CACHE PATH "the host's own")
add_executable(host main.cpp)
install(TARGETS host)
if(WITH_LIBRARIES)
    include(FetchContent)
    FetchContent_Declare(OrvCameraGuiApi SOURCE_DIR "${ORV_SOURCE}")
    FetchContent_MakeAvailable(OrvCameraGuiApi)
    target_link_libraries(host PRIVATE OrvCameraGuiApi::OrvCameraGuiApi)
endif()
END
cat >"$work/host/main.cpp" <<'END'
#include <OrvCam.h>
#include <orvcamconfig.h>
#include <orvcameraguiapi_version.h>
int main()
{
    return OrvCameraGuiApi_GetVersion() == ORVCAMERAGUIAPI_VERSION ? 0 : 1;
}
END

configure() {
    cmake -S "$work/host" -B "$work/build" -G Ninja -DORV_SOURCE="$source" -DWITH_LIBRARIES="$1" \
        >"$work/cmake.log" 2>&1 || { cat "$work/cmake.log" >&2; fail "cmake failed"; }
    grep -E '^[A-Za-z].*=' "$work/build/CMakeCache.txt" | grep -vE '^WITH_LIBRARIES|:INTERNAL=' | sort >"$2"
}
configure OFF "$work/before"
configure ON "$work/after"
changed=$(comm -23 "$work/before" "$work/after")
[ -z "$changed" ] || fail "changes entries of the host's cache: $changed"

targets=$(ninja -C "$work/build" -t targets all | sed 's/:.*//')
unasked=$(echo "$targets" | grep -E '(^|/)(tst_[a-z]*|orvcamconfig|qt-host|soak|docs|test-camera|.*designer\.so)$' || true)
[ -z "$unasked" ] || fail "builds more than the libraries: $unasked"
ctest --test-dir "$work/build" -N | grep -q 'Total Tests: 0' || fail "brings tests"
installed=$(find "$work/build" -name cmake_install.cmake -exec grep -l 'file(INSTALL' {} + || true)
[ "$installed" = "$work/build/cmake_install.cmake" ] || fail "installs something: $installed"
ninja -C "$work/build" CMakeFiles/host.dir/main.cpp.o >"$work/build.log" 2>&1 \
    || { cat "$work/build.log" >&2; fail "the host's program cannot be compiled"; }
ninja -C "$work/build" -n -v host | tail -n 1 | grep -q 'libQt5Widgets\|libQt6Widgets' \
    || fail "the host is not linked with Qt"
echo "the libraries can be a part of another project"
