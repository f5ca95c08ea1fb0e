// SPDX-License-Identifier: MIT
#pragma once

#include "simulation/cameraidentity.h"
#include "simulation/cameramemory.h"

namespace OrvSimulation {

/// Fills the memory of a camera that has just been made with what a real one holds when it is
/// switched on for the first time.
void writeStartValues(CameraMemory &memory, const CameraIdentity &identity);

} // namespace OrvSimulation
