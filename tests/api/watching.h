/* SPDX-License-Identifier: MIT */
#pragma once

/* For programs in C: hears what a camera tells of its parameters. */

#include <orvcameraapi.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Has the camera adjust its white balance all the time, and counts from now on. */
void startWatching(OrvCamDevice *device);
int changesSeen(void);
void stopWatching(void);

#ifdef __cplusplus
}
#endif
