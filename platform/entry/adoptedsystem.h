// SPDX-License-Identifier: MIT
#pragma once

#include <aravis/adopteddevice.h>
#include <cameraapi/camerasystem.h>

namespace OrvCam {

/// A device of Aravis that its program shares with us, as the only camera of an interface.
class AdoptedInterface final : public CameraInterface
{
public:
    AdoptedInterface(CameraSystem &system, const OrvAravis::AdoptedDevice &device);

    const OrvAravis::AdoptedDevice &adopted() const { return m_device; }

private:
    int32_t discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found) override;
    std::shared_ptr<CameraConnector> makeConnector(const DeviceFacts &facts) override;

    const OrvAravis::AdoptedDevice m_device;
};

/// A camera system of its own for a device that is no result of a search. It lives as long as the
/// device that is opened from it.
class AdoptedSystem final : public CameraSystem
{
public:
    explicit AdoptedSystem(const OrvAravis::AdoptedDevice &device) : m_interface(*this, device) {}

    /// Null with the reason in `error`.
    static Device *open(const OrvAravis::AdoptedDevice &device, int32_t &error);

protected:
    std::vector<CameraInterface *> interfaces() override { return {&m_interface}; }

private:
    AdoptedInterface m_interface;
};

} // namespace OrvCam
