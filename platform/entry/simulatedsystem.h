// SPDX-License-Identifier: MIT
#pragma once

#include "simulatedinterface.h"

#include <cameraapi/camerasystem.h>

namespace OrvCam {

/// A camera system without hardware that sends nothing anywhere. It shows all that a real one may:
/// three kinds of interface, one of them without cameras and one that cannot list any, and cameras
/// in every access state and with names of every sort.
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
