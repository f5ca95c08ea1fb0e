/* SPDX-License-Identifier: MIT */
#pragma once

/* Calls of a C program, compiled as C. */

#include <orvcameraguiapi.h>

#ifdef __cplusplus
extern "C" {
#endif

OrvGuiParamTreeView *openTreeInC(OrvGenParamArray *array, unsigned long window);
OrvGuiParamTreeView *openWideTreeInC(OrvGenApiNodeMap *nodeMap, const wchar_t *title);
void closeTreeInC(OrvGuiParamTreeView *view);

#ifdef __cplusplus
}
#endif
