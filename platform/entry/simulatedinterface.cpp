// SPDX-License-Identifier: MIT
#include "simulatedinterface.h"

#include "simulatedconnector.h"

#include <simulation/simulatedcamera.h>

#include <algorithm>

namespace OrvCam {

namespace {

std::optional<std::string> textOrNothing(const std::string &text)
{
    return text.empty() ? std::nullopt : std::make_optional(text);
}

DeviceFacts factsOf(const SimulatedEntry &entry)
{
    DeviceFacts facts;
    facts.id = entry.id();
    facts.accessState = OrvSimulation::SimulatedCamera::isOpen(entry.identity.serial)
                            ? AccessNone
                            : entry.accessState;
    if (entry.isNameless)
        return facts;
    facts.vendor = textOrNothing(entry.identity.vendor);
    facts.model = textOrNothing(entry.identity.model);
    facts.serial = textOrNothing(entry.identity.serial);
    facts.version = textOrNothing(entry.identity.version);
    facts.userName = textOrNothing(entry.identity.userName);
    return facts;
}

GevAddresses addressesOf(const SimulatedEntry &entry)
{
    return {entry.identity.macAddress, entry.identity.ipAddress, entry.identity.subnetMask,
            entry.identity.gateway};
}

} // namespace

std::string SimulatedEntry::id() const
{
    return "Simulated-" + identity.serial;
}

SimulatedInterface::SimulatedInterface(CameraSystem &system, std::string description,
                                       int32_t transportKind, std::vector<SimulatedEntry> cameras)
    : CameraInterface(system, std::move(description), transportKind)
{
    for (SimulatedEntry &camera : cameras)
        m_cameras.push_back(std::make_shared<SimulatedEntry>(std::move(camera)));
}

void SimulatedInterface::setAdapter(const GevAddresses &adapter)
{
    m_adapter = adapter;
    m_parameters = std::make_unique<GevParameters>(static_cast<GevNetwork &>(*this));
}

DeviceInfoList *SimulatedInterface::GetDeviceInfoSet()
{
    return m_refusesToList ? nullptr : CameraInterface::GetDeviceInfoSet();
}

OrvGenParam::Array *SimulatedInterface::GetParamArray(int32_t *error)
{
    if (!m_parameters)
        return CameraInterface::GetParamArray(error);
    if (error)
        *error = Success;
    return &m_parameters->array();
}

int32_t SimulatedInterface::discover(uint32_t, std::vector<DeviceFacts> &found)
{
    for (const EntryPointer &camera : m_cameras)
        found.push_back(factsOf(*camera));
    return Success;
}

std::shared_ptr<CameraConnector> SimulatedInterface::makeConnector(const DeviceFacts &facts)
{
    return std::make_shared<SimulatedConnector>(entry(facts.id));
}

void SimulatedInterface::refreshed()
{
    if (m_parameters)
        m_parameters->networkChanged();
}

SimulatedInterface::EntryPointer SimulatedInterface::entry(const std::string &id) const
{
    const auto found = std::find_if(m_cameras.begin(), m_cameras.end(),
                                    [&](const EntryPointer &camera) { return camera->id() == id; });
    return found == m_cameras.end() ? nullptr : *found;
}

std::vector<GevAddresses> SimulatedInterface::cameras() const
{
    std::vector<GevAddresses> addresses;
    for (const DeviceRecord *record : present())
        addresses.push_back(addressesOf(*entry(record->facts().id)));
    return addresses;
}

int32_t SimulatedInterface::forceIp(const GevAddresses &wanted)
{
    for (DeviceRecord *record : present()) {
        const EntryPointer camera = entry(record->facts().id);
        if (camera->identity.macAddress != wanted.mac)
            continue;
        if (factsOf(*camera).accessState == AccessNone)
            return ErrorAccessDenied;
        camera->identity.ipAddress = wanted.ip;
        camera->identity.subnetMask = wanted.mask;
        camera->identity.gateway = wanted.gateway;
        camera->accessState = m_adapter->reaches(wanted) ? AccessReadWrite : AccessSubnetMismatch;
        record->setAccessState(camera->accessState);
        return Success;
    }
    return ErrorGone;
}

} // namespace OrvCam
