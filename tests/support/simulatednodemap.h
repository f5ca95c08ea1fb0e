// SPDX-License-Identifier: MIT
#pragma once

#include <description/description.h>
#include <description/nodemap.h>
#include <simulation/simulatedcamera.h>

#include <memory>

/// A node map of the simulated camera. Several node maps share no cache.
inline std::unique_ptr<OrvDescription::NodeMap>
openNodeMap(const OrvSimulation::SimulatedCamera &camera)
{
    const auto text = OrvSimulation::SimulatedCamera::description();
    return std::make_unique<OrvDescription::NodeMap>(
        OrvDescription::Description::shared(*text, "The simulated camera's description"),
        camera.port());
}
