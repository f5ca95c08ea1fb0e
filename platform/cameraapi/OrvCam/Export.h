/* SPDX-License-Identifier: MIT */
#pragma once

/* Marks what libOrvCameraApi exports. */
#define ORVCAMERAAPI_EXPORT __attribute__((visibility("default")))
