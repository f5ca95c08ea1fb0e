// SPDX-License-Identifier: MIT
#pragma once

#include "camerainterface.h"

#include <OrvCam/System.h>

#include <memory>
#include <vector>

namespace OrvCam {

/// A camera system. It exists as long as a program or an open device uses it: the last release only
/// drops the program's reference.
class CameraSystem : public System, public std::enable_shared_from_this<CameraSystem>
{
public:
    using Maker = std::shared_ptr<CameraSystem> (*)();

    /// The system of this process, which `make` creates when there is none. Each call is paired
    /// with one `Release`.
    static CameraSystem *acquire(Maker make);

    InterfaceList *GetInterfaceSet(uint32_t typeMask) override;
    void Release() override;

    /// Searches for cameras on all interfaces. Returns the first error, but continues with the
    /// other interfaces after it.
    int32_t refreshDevices(uint32_t timeoutMs);

    /// The cameras that `refreshDevices` found, in the order of the interfaces.
    const std::vector<DeviceInfo *> &devices() const { return m_devices; }

protected:
    /// All interfaces that are present, always in the same order.
    virtual std::vector<CameraInterface *> interfaces() = 0;

private:
    std::vector<DeviceInfo *> m_devices;
};

} // namespace OrvCam
