// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/cameraconnection.h>

#include <memory>

namespace OrvSimulation {

struct SimulatedEntry;

/// Opens a simulated camera, or refuses to as its access state says.
class SimulatedConnector final : public OrvCam::CameraConnector
{
public:
    explicit SimulatedConnector(std::shared_ptr<const SimulatedEntry> camera);

    std::unique_ptr<OrvCam::CameraConnection> open(int32_t accessMode, int32_t &error) override;

private:
    const std::shared_ptr<const SimulatedEntry> m_camera;
};

} // namespace OrvSimulation
