/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAGUIAPI_EXPORT_H
#define ORVCAMERAGUIAPI_EXPORT_H

/* Marks what libOrvCameraGuiApi exports; everything else is hidden. */
#define ORVCAMERAGUIAPI_EXPORT __attribute__((visibility("default")))

#endif
