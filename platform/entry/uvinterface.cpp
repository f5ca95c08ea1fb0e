// SPDX-License-Identifier: MIT
#include "uvinterface.h"

#include "opencode.h"
#include "utf8.h"

#include <aravis/usbcameras.h>
#include <cameraapi/portconnection.h>

namespace OrvCam {

namespace {

std::optional<std::string> textOrNothing(const std::string &text)
{
    return text.empty() ? std::nullopt : std::make_optional(validUtf8(text));
}

class UvConnector final : public PortConnector
{
public:
    explicit UvConnector(std::string id) : m_id(std::move(id)) {}

    OpenedCamera openPort(int32_t, const OpenProgress &, int32_t &error) override
    {
        auto opened = OrvAravis::openUsbCamera(m_id);
        error = codeOf(opened.failure);
        return {std::move(opened.port), std::move(opened.description)};
    }

private:
    const std::string m_id;
};

} // namespace

UvInterface::UvInterface(CameraSystem &system)
    : CameraInterface(system, "USB3 Vision", TransportUsb3Vision)
{
}

int32_t UvInterface::discover(uint32_t, std::vector<DeviceFacts> &found)
{
    for (const OrvAravis::UsbCamera &camera : OrvAravis::findUsbCameras()) {
        DeviceFacts facts;
        facts.id = camera.id;
        facts.vendor = textOrNothing(camera.vendor);
        facts.model = textOrNothing(camera.model);
        facts.serial = textOrNothing(camera.serial);
        facts.accessState = AccessReadWrite;
        found.push_back(std::move(facts));
    }
    return Success;
}

std::shared_ptr<CameraConnector> UvInterface::makeConnector(const DeviceFacts &facts)
{
    return std::make_shared<UvConnector>(facts.id);
}

} // namespace OrvCam
