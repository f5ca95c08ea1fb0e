// SPDX-License-Identifier: MIT
#include "adoptedsystem.h"

#include "utf8.h"

#include <cameraapi/portconnection.h>

using OrvAravis::AdoptedDevice;

namespace OrvCam {

namespace {

int32_t transportOf(AdoptedDevice::Kind kind)
{
    switch (kind) {
    case AdoptedDevice::Kind::GigEVision:
        return TransportGigEVision;
    case AdoptedDevice::Kind::Usb3Vision:
        return TransportUsb3Vision;
    default:
        return TransportCustom;
    }
}

std::optional<std::string> textOrNothing(const std::string &text)
{
    return text.empty() ? std::nullopt : std::make_optional(validUtf8(text));
}

class AdoptedConnector final : public PortConnector
{
public:
    explicit AdoptedConnector(AdoptedDevice device) : m_device(std::move(device)) {}

    OpenedCamera openPort(int32_t, const OpenProgress &, int32_t &error) override
    {
        auto description = m_device.description();
        error = description ? Success : ErrorBadDescription;
        if (!description)
            return {};
        return {m_device.openPort(), std::move(description)};
    }

private:
    const AdoptedDevice m_device;
};

} // namespace

AdoptedInterface::AdoptedInterface(CameraSystem &system, const AdoptedDevice &device)
    : CameraInterface(system, "Aravis", transportOf(device.kind())), m_device(device)
{
}

int32_t AdoptedInterface::discover(uint32_t, std::vector<DeviceFacts> &found)
{
    const AdoptedDevice::Identity identity = m_device.identity();
    DeviceFacts facts;
    facts.id = validUtf8(identity.id);
    facts.vendor = textOrNothing(identity.vendor);
    facts.model = textOrNothing(identity.model);
    facts.serial = textOrNothing(identity.serial);
    facts.version = textOrNothing(identity.version);
    facts.userName = textOrNothing(identity.userName);
    facts.accessState = m_device.isController() ? AccessReadWrite : AccessReadOnly;
    found.push_back(std::move(facts));
    return Success;
}

std::shared_ptr<CameraConnector> AdoptedInterface::makeConnector(const DeviceFacts &)
{
    return std::make_shared<AdoptedConnector>(m_device);
}

Device *AdoptedSystem::open(const AdoptedDevice &device, int32_t &error)
{
    const auto system = std::make_shared<AdoptedSystem>(device);
    error = system->m_interface.RefreshDevices(nullptr, 0);
    if (error != Success)
        return nullptr;
    DeviceRecord *record = system->m_interface.present().front();
    return record->open(device.isController() ? AccessControl : AccessMonitor, error);
}

} // namespace OrvCam
