#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program on a private virtual X server; $ORV_SCREEN sets the size of the screen.
exec xvfb-run -a -s "-screen 0 ${ORV_SCREEN:-1600x1200}x24 -nolisten tcp" "$@"
