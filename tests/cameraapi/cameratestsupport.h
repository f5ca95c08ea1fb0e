// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QString>

#include <memory>
#include <vector>

/// Releases what the camera access library hands out.
struct Releaser
{
    template<class T>
    void operator()(T *object) const
    {
        object->Release();
    }
};

template<class T>
using Released = std::unique_ptr<T, Releaser>;

/// Everything in a list, which is released.
template<class Entry, class List>
std::vector<Entry *> entriesOf(List *list)
{
    std::vector<Entry *> entries;
    if (!list)
        return entries;
    for (Entry *entry = list->GetFirst(); entry; entry = list->GetNext())
        entries.push_back(entry);
    if (entries.size() != list->GetCount())
        qFatal("A list of %u has %zu entries", list->GetCount(), entries.size());
    list->Release();
    return entries;
}

inline std::vector<OrvCam::Interface *> interfacesOf(OrvCam::System &system,
                                                     uint32_t mask = OrvCam::InterfaceAll)
{
    return entriesOf<OrvCam::Interface>(system.GetInterfaceSet(mask));
}

inline std::vector<OrvCam::DeviceInfo *> camerasOf(OrvCam::Interface &interface)
{
    interface.RefreshDevices(nullptr, 200);
    return entriesOf<OrvCam::DeviceInfo>(interface.GetDeviceInfoSet());
}
