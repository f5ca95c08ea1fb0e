// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/portconnection.h>

#include <memory>

namespace OrvCam {

struct SimulatedEntry;

/// Opens a simulated camera, or refuses to according to its access state.
class SimulatedConnector final : public PortConnector
{
public:
    explicit SimulatedConnector(std::shared_ptr<const SimulatedEntry> camera);

private:
    OpenedCamera openPort(int32_t accessMode, const OpenProgress &progress,
                          int32_t &error) override;

    const std::shared_ptr<const SimulatedEntry> m_camera;
};

} // namespace OrvCam
