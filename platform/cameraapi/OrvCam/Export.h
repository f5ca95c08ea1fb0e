/* SPDX-License-Identifier: MIT */
#pragma once

/* Marks the symbols that libOrvCameraApi exports. */
#define ORVCAMERAAPI_EXPORT __attribute__((visibility("default")))
