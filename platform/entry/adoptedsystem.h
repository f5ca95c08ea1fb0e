// SPDX-License-Identifier: MIT
#pragma once

#include <aravis/adopteddevice.h>
#include <cameraapi/camerasystem.h>

namespace OrvCam {

/// The interface whose only camera is a device of Aravis that the host shares.
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

/// A separate camera system for a device that was not found by a search. It exists as long as the
/// device.
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
