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

std::string descriptionOf(const NetworkAdapter &adapter)
{
    std::string text = adapter.name + " (";
    text += adapter.addresses.empty() ? "no IPv4 address"
                                      : OrvGigEVision::ipText(adapter.addresses.front().ip);
    return text + (adapter.isConnected ? ")" : ", not connected)");
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
    if (camera.isNameShared)
        facts.remark = camera.identity.mac ? "MAC address used twice" : "serial number used twice";
    facts.accessState = accessStateOf(camera);
    return facts;
}

} // namespace

GvInterface::GvInterface(CameraSystem &system, NetworkAdapter adapter,
                         OrvGigEVision::NetworkSearch &search)
    : CameraInterface(system, descriptionOf(adapter), TransportGigEVision)
    , m_search(search)
    , m_adapter(std::move(adapter))
    , m_parameters(*this)
{
}

void GvInterface::setAdapter(NetworkAdapter adapter)
{
    if (m_isForcing)
        return;
    m_adapter = std::move(adapter);
    describe();
    m_parameters.networkChanged();
}

void GvInterface::describe()
{
    std::string text = descriptionOf(m_adapter);
    if (m_unlisted > 0)
        text += " - " + std::to_string(m_unlisted) + " more cameras are not listed";
    setDescription(text);
}

OrvGenParam::Array *GvInterface::GetParamArray(int32_t *error)
{
    if (error)
        *error = Success;
    return &m_parameters.array();
}

int32_t GvInterface::discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found)
{
    if (m_isForcing) // the other thread uses the members that this would change
        return ErrorBusy;
    auto result = m_search.camerasOf(m_adapter.name, std::chrono::milliseconds(timeoutMs));
    m_addresses.clear();
    for (const GvCamera &camera : result.cameras) {
        found.push_back(factsOf(camera));
        const auto &identity = camera.identity;
        m_addresses[found.back().id] = {identity.mac, identity.ip, identity.mask, identity.gateway};
    }
    m_unlisted = result.unlisted;
    if (!result.adapter.name.empty())
        m_adapter = std::move(result.adapter);
    return Success;
}

std::shared_ptr<CameraConnector> GvInterface::makeConnector(const DeviceFacts &facts)
{
    return std::make_shared<GvConnector>(m_adapter.name, facts.id);
}

void GvInterface::refreshed()
{
    describe();
    m_parameters.networkChanged();
}

GevAddresses GvInterface::adapter() const
{
    if (m_adapter.addresses.empty())
        return {m_adapter.mac, 0, 0, 0};
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
    std::vector<DeviceRecord *> concerned;
    for (DeviceRecord *record : present()) {
        if (m_addresses.at(record->facts().id).mac == wanted.mac)
            concerned.push_back(record);
    }
    // The command addresses the camera by its MAC address and would change all of them.
    if (concerned.size() != 1)
        return concerned.empty() ? ErrorGone : ErrorNotAvailable;

    m_isGivenUp = false;
    m_isForcing = true;
    const auto isGivenUp = [this] { return m_isGivenUp.load(); };
    const int32_t error = codeOf(OrvGigEVision::forceIp(m_adapter, wanted.mac, wanted.ip,
                                                        wanted.mask, wanted.gateway, isGivenUp));
    if (error == Success) {
        m_addresses.at(concerned.front()->facts().id) = wanted;
        concerned.front()->setAccessState(m_adapter.addressFor(wanted.ip) ? AccessReadWrite
                                                                          : AccessSubnetMismatch);
    }
    m_isForcing = false;
    return error;
}

} // namespace OrvCam
