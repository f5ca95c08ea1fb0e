// SPDX-License-Identifier: MIT
#pragma once

#include "simulatedinterface.h"

#include <cameraapi/camerasystem.h>

namespace OrvCam {

/// A camera system without hardware and network access. It covers the variety of real ones: three
/// kinds of interface, one of them without cameras and one that cannot list any, and cameras with
/// every access state and all kinds of names.
class SimulatedSystem final : public CameraSystem
{
public:
    SimulatedSystem();

protected:
    std::vector<CameraInterface *> interfaces() override;

private:
    SimulatedInterface &add(std::string description, int32_t transportKind,
                            std::vector<SimulatedEntry> cameras = {});
    void addNetworks();
    void addUsb();
    void addOthers();

    std::vector<std::unique_ptr<SimulatedInterface>> m_interfaces;
};

} // namespace OrvCam
