// SPDX-License-Identifier: MIT
#include "gvinterface.h"

#include "gvconnector.h"

#include <glib.h>

using namespace OrvCam;

namespace OrvAravis {

namespace {

/// How long a camera may take to come up with an address that was forced on it.
constexpr std::chrono::seconds forceTime{5};

std::string describe(const NetworkAdapter &adapter)
{
    return adapter.name + " (" + ipText(adapter.addresses.front().ip) + ")";
}

/// UTF-8 whatever the camera sent; nothing for an empty text.
std::optional<std::string> textOrNothing(const std::string &bytes)
{
    if (bytes.empty())
        return std::nullopt;
    const std::unique_ptr<char, void (*)(void *)> valid(
        g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size())), g_free);
    return valid.get();
}

DeviceFacts factsOf(const GvCamera &camera)
{
    DeviceFacts facts;
    facts.id = textOrNothing(camera.id()).value_or("");
    facts.vendor = textOrNothing(camera.identity.manufacturer);
    facts.model = textOrNothing(camera.identity.model);
    facts.serial = textOrNothing(camera.identity.serial);
    facts.version = textOrNothing(camera.identity.version);
    facts.userName = textOrNothing(camera.identity.userName);
    facts.accessState = camera.accessState;
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
         discoverCameras(m_adapter, std::chrono::milliseconds(timeoutMs))) {
        found.push_back(factsOf(camera));
        const Gvcp::Identity &identity = camera.identity;
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
    const int32_t error = OrvAravis::forceIp(m_adapter, wanted.mac, wanted.ip, wanted.mask,
                                             wanted.gateway, forceTime);
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

} // namespace OrvAravis
