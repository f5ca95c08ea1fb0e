// SPDX-License-Identifier: MIT
#include "orvcameraguiapi.h"

#include "creategenparamtreeview.h"
#include "selectcamera.h"

#include <cstring>

namespace {

QString fromNarrow(const char *text)
{
    return QString::fromUtf8(text, text ? static_cast<int>(std::strlen(text)) : -1);
}

QString fromWide(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

} // namespace

OrvGuiParamTreeView *CreateGenParamTreeViewForNodemapA(OrvGenApiNodeMap *nodeMap, const char *title,
                                                       unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(nodeMap, fromNarrow(title), parent);
}

OrvGuiParamTreeView *CreateGenParamTreeViewForNodemapW(OrvGenApiNodeMap *nodeMap,
                                                       const wchar_t *title, unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(nodeMap, fromWide(title), parent);
}

OrvGuiParamTreeView *CreateGenParamTreeViewForArrayA(OrvGenParamArray *array, const char *title,
                                                     unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(array, fromNarrow(title), parent);
}

OrvGuiParamTreeView *CreateGenParamTreeViewForArrayW(OrvGenParamArray *array, const wchar_t *title,
                                                     unsigned long parent)
{
    return OrvGui::CreateGenParamTreeView(array, fromWide(title), parent);
}

void DestroyGenParamTreeView(OrvGuiParamTreeView *view)
{
    delete view;
}

OrvCamDeviceInfo *SelectCameraA(OrvCamSystem *system, const char *title, unsigned long parent)
{
    return OrvGui::SelectCamera(system, fromNarrow(title), parent);
}

OrvCamDeviceInfo *SelectCameraW(OrvCamSystem *system, const wchar_t *title, unsigned long parent)
{
    return OrvGui::SelectCamera(system, fromWide(title), parent);
}
