/* SPDX-License-Identifier: MIT */
#include "ccalls.h"

OrvGuiParamTreeView *openTreeInC(OrvGenParamArray *array, unsigned long window)
{
    return CreateGenParamTreeViewForArrayA(array, "Param\xc3\xa8tres", window);
}

OrvGuiParamTreeView *openWideTreeInC(OrvGenApiNodeMap *nodeMap, const wchar_t *title)
{
    return CreateGenParamTreeViewForNodemapW(nodeMap, title, 0);
}

void closeTreeInC(OrvGuiParamTreeView *view)
{
    DestroyGenParamTreeView(view);
}
