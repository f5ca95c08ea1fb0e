// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam.h>
#include <OrvGenParam.h>

#include <QString>

#include <algorithm>
#include <mutex>
#include <vector>

/// Records the events of a device.
struct Events
{
    Events() = default;
    explicit Events(OrvCam::Device &device)
    {
        device.RegisterEvent(OrvCam::EventDisconnected, note, this);
        device.RegisterEvent(OrvCam::EventReconnected, note, this);
    }

    static void note(int32_t code, void *context)
    {
        auto *self = static_cast<Events *>(context);
        const std::lock_guard<std::mutex> lock(self->mutex);
        self->codes.push_back(code);
    }

    std::vector<int32_t> seen()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return codes;
    }
    int count(int32_t code)
    {
        const std::vector<int32_t> all = seen();
        return static_cast<int>(std::count(all.begin(), all.end(), code));
    }

    std::mutex mutex;
    std::vector<int32_t> codes;
};

/// Counts the notifications of parameters.
struct CountingSink : OrvGenParam::ParamEventSink
{
    void OnParameterUpdate(OrvGenParam::Param *) override { ++count; }
    int count = 0;
};

/// The entries of a list; releases the list.
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
