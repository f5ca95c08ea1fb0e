/* SPDX-License-Identifier: MIT */
#pragma once

#include "orvcameraguiapi_export.h"

#include <stdint.h>

/*
 * The version at compile time. docs/versions.md describes its guarantees.
 *
 *     #if ORVCAMERAGUIAPI_VERSION >= ORVCAMERAGUIAPI_VERSION_NUMBER(1, 4, 0)
 */
#define ORVCAMERAGUIAPI_VERSION_NUMBER(major, minor, patch) ((major) << 16 | (minor) << 8 | (patch))
#define ORVCAMERAGUIAPI_VERSION_MAJOR 1
#define ORVCAMERAGUIAPI_VERSION_MINOR 3
#define ORVCAMERAGUIAPI_VERSION_PATCH 0
#define ORVCAMERAGUIAPI_VERSION                                                                    \
    ORVCAMERAGUIAPI_VERSION_NUMBER(ORVCAMERAGUIAPI_VERSION_MAJOR, ORVCAMERAGUIAPI_VERSION_MINOR,   \
                                   ORVCAMERAGUIAPI_VERSION_PATCH)
#define ORVCAMERAGUIAPI_VERSION_TEXT "1.3.0"

#ifdef __cplusplus
extern "C" {
#endif

/* The version of the library at run time, in the format of ORVCAMERAGUIAPI_VERSION. */
ORVCAMERAGUIAPI_EXPORT uint32_t OrvCameraGuiApi_GetVersion(void);

/* The same as a text, in the format of ORVCAMERAGUIAPI_VERSION_TEXT; never null. */
ORVCAMERAGUIAPI_EXPORT const char *OrvCameraGuiApi_GetVersionText(void);

#ifdef __cplusplus
}
#endif
