/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAGUIAPI_EXPORT_H
#define ORVCAMERAGUIAPI_EXPORT_H

/* Marks the symbols that libOrvCameraGuiApi exports; all others are hidden. */
#define ORVCAMERAGUIAPI_EXPORT __attribute__((visibility("default")))

#endif
