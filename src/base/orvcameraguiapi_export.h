/* SPDX-License-Identifier: MIT */
#pragma once

/* Marks the symbols that libOrvCameraGuiApi exports; all others are hidden. */
#define ORVCAMERAGUIAPI_EXPORT __attribute__((visibility("default")))
