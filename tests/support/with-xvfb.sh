#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs a program on a virtual X server of its own.
exec xvfb-run -a -s "-screen 0 1600x1200x24 -nolisten tcp" "$@"
