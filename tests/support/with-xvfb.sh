#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program on a virtual X server of its own, whose screen has $ORV_SCREEN pixels.
exec xvfb-run -a -s "-screen 0 ${ORV_SCREEN:-1600x1200}x24 -nolisten tcp" "$@"
