/* SPDX-License-Identifier: MIT */
#pragma once

#include <OrvCam/Export.h>

#include <stdint.h>

/*
 * The version at compile time. docs/versions.md describes its guarantees.
 *
 *     #if ORVCAMERAAPI_VERSION >= ORVCAMERAAPI_VERSION_NUMBER(1, 4, 0)
 */
#define ORVCAMERAAPI_VERSION_NUMBER(major, minor, patch) ((major) << 16 | (minor) << 8 | (patch))
#define ORVCAMERAAPI_VERSION_MAJOR 1
#define ORVCAMERAAPI_VERSION_MINOR 3
#define ORVCAMERAAPI_VERSION_PATCH 0
#define ORVCAMERAAPI_VERSION                                                                       \
    ORVCAMERAAPI_VERSION_NUMBER(ORVCAMERAAPI_VERSION_MAJOR, ORVCAMERAAPI_VERSION_MINOR,            \
                                ORVCAMERAAPI_VERSION_PATCH)
#define ORVCAMERAAPI_VERSION_TEXT "1.3.0"

#ifdef __cplusplus
extern "C" {
#endif

/* The version of the library at run time, in the format of ORVCAMERAAPI_VERSION. */
ORVCAMERAAPI_EXPORT uint32_t OrvCameraApi_GetVersion(void);

/* The same as a text, in the format of ORVCAMERAAPI_VERSION_TEXT; never null. */
ORVCAMERAAPI_EXPORT const char *OrvCameraApi_GetVersionText(void);

#ifdef __cplusplus
}
#endif
