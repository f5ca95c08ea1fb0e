#!/bin/sh
# SPDX-License-Identifier: MIT
# check-installation.sh SOURCE_DIR BUILD_DIR WORK_DIR [QT]
# Installs the build and uses it like an independent project: each header on its own, the libraries
# through pkg-config, and the examples through CMake, outside the source tree.
set -eu
source=$1
build=$2
work=$3
qt=${4:-5}
name=OrvCameraGuiApi
pc=orvcameraguiapi
[ "$qt" = 5 ] || { name=${name}Qt$qt pc=$pc-qt$qt; }
prefix=$work/moved

fail() { echo "check-installation.sh: $*" >&2; exit 1; }

rm -rf "$work"
mkdir -p "$work"
cmake --install "$build" --prefix "$work/prefix" >"$work/install.log"
mv "$work/prefix" "$prefix" # an installation can be moved
pkgconfig=$(find "$prefix" -type d -name pkgconfig)
export PKG_CONFIG_PATH="$pkgconfig${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
cxxflags=$(pkg-config --cflags "$pc" "Qt${qt}Widgets")

include=$prefix/include
(cd "$include/$name" && ls -- *.h) >"$work/headers"
(cd "$include/OrvCameraApi" && find . -name '*.h' | sed 's|^\./||') >>"$work/headers"
while read -r header; do
    echo "#include <$header>" >"$work/header.cpp"
    # shellcheck disable=SC2086 # flags are words
    ${CXX:-c++} -std=c++17 -fPIC -Wall -Wextra -Werror -fsyntax-only $cxxflags "$work/header.cpp" \
        || fail "$header can't be used on its own"
done <"$work/headers"
echo "$(wc -l <"$work/headers") headers can be used on their own"

cat >"$work/host.c" <<'EOF'
#include <orvcameraguiapi.h>
#include <stdio.h>
int main(void)
{
    printf("%s %s ", OrvCameraGuiApi_GetVersionText(), OrvCameraApi_GetVersionText());
    printf("%d.%d.%d ", ORVCAMERAGUIAPI_VERSION_MAJOR, ORVCAMERAGUIAPI_VERSION_MINOR,
           ORVCAMERAGUIAPI_VERSION_PATCH);
    printf("%d.%d.%d\n", ORVCAMERAAPI_VERSION_MAJOR, ORVCAMERAAPI_VERSION_MINOR,
           ORVCAMERAAPI_VERSION_PATCH);
    if (OrvCameraGuiApi_GetVersion() != ORVCAMERAGUIAPI_VERSION
        || OrvCameraApi_GetVersion() != ORVCAMERAAPI_VERSION)
        return 1;
    OrvGuiParamTreeView *view = CreateGenParamTreeViewForNodemapA(NULL, "empty", 0);
    DestroyGenParamTreeView(view);
    return 0;
}
EOF
# shellcheck disable=SC2046,SC2086 # flags are words
${CC:-cc} -std=c99 -Wall -Wextra -Werror ${CFLAGS:-} "$work/host.c" -o "$work/host" \
    $(pkg-config --cflags --libs "$pc") ${LDFLAGS:-}
LD_LIBRARY_PATH=$(dirname -- "$pkgconfig") QT_QPA_PLATFORM=offscreen "$work/host" >"$work/versions" \
    || fail "a C program can't use the installed library"
version=$(pkg-config --modversion "$pc")
[ "$(cat "$work/versions")" = "$version $version $version $version" ] \
    || fail "the headers' versions are not $version: $(cat "$work/versions")"
echo "a C program made with pkg-config runs"

# The first code block of each language in the README is a complete program; it is built like an
# example.
code() { awk -v "start=\`\`\`$1" '$0 == "```" { if (on) exit } on; $0 == start { on = 1 }' "$source/README.md"; }
mkdir "$work/readme"
code cpp >"$work/readme/main.cpp"
code cmake >"$work/readme/CMakeLists.txt"
for example in "$source"/examples/*/CMakeLists.txt "$work/readme/CMakeLists.txt"; do
    host=$(basename -- "$(dirname -- "$example")")
    [ "$host" != aravis-host ] || [ -f "$include/OrvCameraApi/orvcameraapi-aravis.h" ] || continue
    [ "$host" = readme ] || cp -r "$source/examples/$host" "$work/$host"
    sed -i -e "s/find_package(OrvCameraGuiApi /find_package($name /" \
        -e "s/OrvCameraGuiApi::OrvCameraGuiApi/OrvCameraGuiApi::$name/" "$work/$host/CMakeLists.txt"
    cmake -S "$work/$host" -B "$work/$host/build" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" \
        >"$work/$host.log" 2>&1 || { cat "$work/$host.log"; fail "$host: cmake failed"; }
    cmake --build "$work/$host/build" >"$work/$host.log" 2>&1 \
        || { cat "$work/$host.log"; fail "$host: the build failed"; }
    grep -q "$work/moved" "$work/$host/build/CMakeCache.txt" || fail "$host used another library"
    echo "example $host is built against the installation"
done

"$prefix/bin/orvcamconfig" --simulate --list-features >"$work/features" \
    || fail "the installed program doesn't run"
[ -s "$work/features" ] || fail "the installed program shows no features"
echo "the installed program runs"
