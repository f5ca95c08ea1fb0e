#!/bin/sh
# SPDX-License-Identifier: MIT
# on-the-wire.sh BUILD_DIR
# Runs tree-transactions against a fake GigE Vision camera with the simulated camera's description,
# in a private network namespace.
set -eu
build=$(CDPATH= cd -- "$1" && pwd)
root=$(CDPATH= cd -- "$(dirname -- "$0")/.." && pwd)
exec "$root/tests/support/with-netns.sh" sh -c '
    arv-fake-gv-camera-0.8 --interface=127.0.0.1 --serial=WIRE --genicam="$1" &
    camera=$!
    trap "kill $camera" EXIT
    sleep 1
    "$0" --address 127.0.0.1' \
    "$build/bin/tree-transactions" "$root/platform/simulation/simulatedcamera.xml"
