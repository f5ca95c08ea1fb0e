// SPDX-License-Identifier: MIT
#include "camerainterface.h"

#include "entrylist.h"

#include <cameraio/limits.h>

#include <algorithm>
#include <set>

namespace OrvCam {

namespace Limits = OrvCameraIo::Limits;

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

void CameraInterface::setDescription(const std::string &description)
{
    // The text stays where it is when nothing has changed.
    if (description != m_description)
        m_description = description;
}

/// Where the camera's record is, which is made for a new camera; `nowhere` when there are too many.
std::size_t CameraInterface::positionOf(const DeviceFacts &facts)
{
    const auto known = m_positions.find(facts.id);
    if (known != m_positions.end())
        return known->second;
    if (m_records.size() >= Limits::knownCameras)
        return nowhere;
    m_records.push_back(std::make_unique<DeviceRecord>(*this, facts, makeConnector(facts)));
    return m_positions[facts.id] = m_records.size() - 1;
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
    std::set<std::size_t> positions;
    m_unlisted = 0;
    for (DeviceFacts &facts : found) {
        const std::size_t position = positionOf(facts);
        if (position == nowhere) {
            ++m_unlisted;
            continue;
        }
        differs |= m_records[position]->update(std::move(facts));
        positions.insert(position);
    }
    std::vector<DeviceRecord *> present;
    for (const std::size_t position : positions)
        present.push_back(m_records[position].get());
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
    return ORV_VERSION;
}

OrvGenParam::Array *CameraInterface::GetParamArray(int32_t *error)
{
    if (error)
        *error = ErrorNotAvailable;
    return nullptr;
}

} // namespace OrvCam
