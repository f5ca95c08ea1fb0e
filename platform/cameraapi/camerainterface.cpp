// SPDX-License-Identifier: MIT
#include "camerainterface.h"

#include "entrylist.h"

#include <OrvCam/Version.h>

#include <cameraio/limits.h>

#include <algorithm>
#include <map>
#include <set>

namespace OrvCam {

namespace Limits = OrvCameraIo::Limits;

namespace {

/// A static list, so that callers that do not release an empty list cause no leak.
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
    // An unchanged text keeps its address.
    if (description != m_description)
        m_description = description;
}

/// Null when none of the known cameras is absent.
CameraInterface::Known *CameraInterface::longestAbsent()
{
    Known *longest = nullptr;
    for (Known &known : m_known) {
        if (known.lastSeen != m_search && !known.record->isInUse() &&
            (!longest || known.lastSeen < longest->lastSeen))
            longest = &known;
    }
    return longest;
}

/// Adds a record for a new camera and returns its index.
std::size_t CameraInterface::placeFor(DeviceFacts &&facts)
{
    auto connector = makeConnector(facts);
    const std::string id = facts.id;
    Known *reused = m_known.size() < Limits::knownCameras ? nullptr : longestAbsent();
    if (reused) {
        m_places.erase(reused->record->facts().id);
        reused->record->reuseFor(std::move(facts), std::move(connector));
        reused->lastSeen = m_search;
        return m_places[id] = static_cast<std::size_t>(reused - m_known.data());
    }
    m_known.push_back(
        {std::make_unique<DeviceRecord>(*this, std::move(facts), std::move(connector)), m_search});
    return m_places[id] = m_known.size() - 1;
}

int32_t CameraInterface::RefreshDevices(bool *changed, uint32_t timeoutMs)
{
    if (changed)
        *changed = false;
    std::vector<DeviceFacts> found;
    const int32_t error = discover(timeoutMs, found);
    if (error != Success)
        return error;

    ++m_search;
    bool differs = false;
    std::set<std::size_t> places;
    // The answers arrive in any order; the records are created in the order of the ids.
    std::map<std::string, DeviceFacts> added;
    for (DeviceFacts &facts : found) {
        const auto known = m_places.find(facts.id);
        if (known == m_places.end()) {
            added[facts.id] = std::move(facts);
            continue;
        }
        differs |= m_known[known->second].record->update(std::move(facts));
        m_known[known->second].lastSeen = m_search;
        places.insert(known->second);
    }
    for (auto &[id, facts] : added)
        places.insert(placeFor(std::move(facts)));

    std::vector<DeviceRecord *> present;
    for (const std::size_t place : places)
        present.push_back(m_known[place].record.get());
    differs |= !added.empty() || present != m_present;
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
