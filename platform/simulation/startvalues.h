// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameraidentity.h"
#include "simulation/cameramemory.h"

namespace OrvSimulation {

/// Initialises the memory of a new camera with the values of a real camera that is switched on for
/// the first time.
void writeStartValues(CameraMemory &memory, const CameraIdentity &identity);

} // namespace OrvSimulation
