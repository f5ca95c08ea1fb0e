// SPDX-License-Identifier: MIT
#include "gvinterface.h"

#include "gvconnector.h"
#include "utf8.h"

#include <gigevision/gvcontrol.h>

using OrvGigEVision::Control;
using OrvGigEVision::ForceResult;
using OrvGigEVision::GvCamera;
using OrvGigEVision::NetworkAdapter;

namespace OrvCam {

namespace {

/// How long a camera may take to come up with an address that was forced on it.
constexpr std::chrono::seconds forceTime{5};

std::string describe(const NetworkAdapter &adapter)
{
    return adapter.name + " (" + OrvGigEVision::ipText(adapter.addresses.front().ip) + ")";
}

std::optional<std::string> textOrNothing(const std::string &bytes)
{
    return bytes.empty() ? std::nullopt : std::make_optional(validUtf8(bytes));
}

int32_t accessStateOf(const GvCamera &camera)
{
    if (!camera.isReachable)
        return AccessSubnetMismatch;
    switch (camera.control) {
    case Control::Free:
        return AccessReadWrite;
    case Control::Taken:
        return AccessNone;
    default:
        return AccessUnknown;
    }
}

int32_t codeOf(ForceResult result)
{
    switch (result) {
    case ForceResult::Done:
        return Success;
    case ForceResult::Refused:
        return ErrorAccessDenied;
    default:
        return ErrorTimeout;
    }
}

DeviceFacts factsOf(const GvCamera &camera)
{
    DeviceFacts facts;
    facts.id = validUtf8(camera.id());
    facts.vendor = textOrNothing(camera.identity.manufacturer);
    facts.model = textOrNothing(camera.identity.model);
    facts.serial = textOrNothing(camera.identity.serial);
    facts.version = textOrNothing(camera.identity.version);
    facts.userName = textOrNothing(camera.identity.userName);
    facts.accessState = accessStateOf(camera);
    return facts;
}

} // namespace

GvInterface::GvInterface(CameraSystem &system, NetworkAdapter adapter)
    : CameraInterface(system, describe(adapter), TransportGigEVision)
    , m_adapter(std::move(adapter))
    , m_parameters(*this)
{
}

void GvInterface::setAdapter(NetworkAdapter adapter)
{
    m_adapter = std::move(adapter);
    setDescription(describe(m_adapter));
    m_parameters.networkChanged();
}

OrvGenParam::Array *GvInterface::GetParamArray(int32_t *error)
{
    if (error)
        *error = Success;
    return &m_parameters.array();
}

int32_t GvInterface::discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found)
{
    for (const GvCamera &camera :
         OrvGigEVision::discoverCameras(m_adapter, std::chrono::milliseconds(timeoutMs))) {
        found.push_back(factsOf(camera));
        const auto &identity = camera.identity;
        m_addresses[found.back().id] = {identity.mac, identity.ip, identity.mask, identity.gateway};
    }
    return Success;
}

std::shared_ptr<CameraConnector> GvInterface::makeConnector(const DeviceFacts &facts)
{
    return std::make_shared<GvConnector>(m_adapter.name, facts.id);
}

void GvInterface::refreshed()
{
    m_parameters.networkChanged();
}

GevAddresses GvInterface::adapter() const
{
    const auto &address = m_adapter.addresses.front();
    return {m_adapter.mac, address.ip, address.mask, 0};
}

std::vector<GevAddresses> GvInterface::cameras() const
{
    std::vector<GevAddresses> all;
    for (const DeviceRecord *record : present())
        all.push_back(m_addresses.at(record->facts().id));
    return all;
}

int32_t GvInterface::forceIp(const GevAddresses &wanted)
{
    const int32_t error = codeOf(OrvGigEVision::forceIp(m_adapter, wanted.mac, wanted.ip,
                                                        wanted.mask, wanted.gateway, forceTime));
    if (error != Success)
        return error;
    for (DeviceRecord *record : present()) {
        GevAddresses &addresses = m_addresses.at(record->facts().id);
        if (addresses.mac != wanted.mac)
            continue;
        addresses = wanted;
        record->setAccessState(m_adapter.addressFor(wanted.ip) ? AccessReadWrite
                                                               : AccessSubnetMismatch);
    }
    return Success;
}

} // namespace OrvCam
