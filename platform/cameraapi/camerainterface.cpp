// SPDX-License-Identifier: MIT
#include "camerainterface.h"

#include "entrylist.h"

#include <OrvCam/Version.h>

#include <algorithm>

namespace OrvCam {

namespace {

/// Nothing is lost when it is not released: not everybody does that with a list that is of no use.
class EmptyList final : public DeviceInfoList
{
public:
    uint32_t GetCount() const override { return 0; }
    DeviceInfo *GetFirst() override { return nullptr; }
    DeviceInfo *GetNext() override { return nullptr; }
    void Release() override {}
};

} // namespace

CameraInterface::CameraInterface(CameraSystem &system, std::string description,
                                 int32_t transportKind)
    : m_system(system), m_description(std::move(description)), m_transportKind(transportKind)
{
}

DeviceRecord *CameraInterface::record(const std::string &id) const
{
    const auto found = std::find_if(m_records.begin(), m_records.end(),
                                    [&](const auto &r) { return r->facts().id == id; });
    return found == m_records.end() ? nullptr : found->get();
}

int32_t CameraInterface::RefreshDevices(bool *changed, uint32_t timeoutMs)
{
    if (changed)
        *changed = false;
    std::vector<DeviceFacts> found;
    const int32_t error = discover(timeoutMs, found);
    if (error != Success)
        return error;

    // Answers come in any order; those that are new are given a reproducible one.
    std::sort(found.begin(), found.end(),
              [](const DeviceFacts &a, const DeviceFacts &b) { return a.id < b.id; });
    bool differs = false;
    std::vector<DeviceRecord *> present;
    for (DeviceFacts &facts : found) {
        DeviceRecord *known = record(facts.id);
        if (known) {
            differs |= known->update(std::move(facts));
        } else {
            auto connector = makeConnector(facts);
            m_records.push_back(
                std::make_unique<DeviceRecord>(*this, std::move(facts), std::move(connector)));
            known = m_records.back().get();
        }
        present.push_back(known);
    }
    const auto age = [this](const DeviceRecord *wanted) {
        return std::find_if(m_records.begin(), m_records.end(),
                            [&](const auto &r) { return r.get() == wanted; });
    };
    std::sort(present.begin(), present.end(),
              [&](const DeviceRecord *a, const DeviceRecord *b) { return age(a) < age(b); });
    differs |= present != m_present;
    m_present = std::move(present);
    if (changed)
        *changed = differs;
    refreshed();
    return Success;
}

DeviceInfoList *CameraInterface::GetDeviceInfoSet()
{
    static EmptyList none;
    if (m_present.empty())
        return &none;
    return new EntryList<DeviceInfoList, DeviceInfo>({m_present.begin(), m_present.end()});
}

const char *CameraInterface::GetVersionText() const
{
    return ORVCAMERAAPI_VERSION_TEXT;
}

OrvGenParam::Array *CameraInterface::GetParamArray(int32_t *error)
{
    if (error)
        *error = ErrorNotAvailable;
    return nullptr;
}

} // namespace OrvCam
