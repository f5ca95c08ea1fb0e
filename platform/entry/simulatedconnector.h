// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/cameraconnection.h>

#include <memory>

namespace OrvCam {

struct SimulatedEntry;

/// Opens a simulated camera, or refuses to as its access state says.
class SimulatedConnector final : public CameraConnector
{
public:
    explicit SimulatedConnector(std::shared_ptr<const SimulatedEntry> camera);

    OpenedCamera open(int32_t accessMode, const OpenProgress &progress, int32_t &error) override;

private:
    const std::shared_ptr<const SimulatedEntry> m_camera;
};

} // namespace OrvCam
