// SPDX-License-Identifier: MIT
#include <orvcameraapi.h>

#include "camerasystem.h"
#include "devicerecord.h"

#include <aravis/aravissystem.h>
#include <simulation/simulatedsystem.h>

#include <cstdlib>
#include <cstring>

namespace {

bool isSimulationWanted()
{
    const char *wanted = std::getenv("ORVCAM_SIMULATION");
    return wanted && std::strcmp(wanted, "") != 0 && std::strcmp(wanted, "0") != 0;
}

std::shared_ptr<OrvCam::CameraSystem> makeSystem()
{
    if (isSimulationWanted())
        return std::make_shared<OrvSimulation::SimulatedSystem>();
    return std::make_shared<OrvAravis::AravisSystem>();
}

} // namespace

OrvCamSystem *OrvCam_GetSystem(void)
{
    return OrvCam::CameraSystem::acquire(makeSystem);
}

OrvCamDevice *OrvCam_CreateDevice(OrvCamDeviceInfo *deviceInfo, int32_t *error, int32_t accessMode)
{
    int32_t code = OrvCam::ErrorInvalidArgument;
    OrvCam::Device *device = nullptr;
    // Only records of this library can be opened.
    auto *record = dynamic_cast<OrvCam::DeviceRecord *>(deviceInfo);
    if (record && (accessMode == OrvCam::AccessMonitor || accessMode == OrvCam::AccessControl))
        device = record->open(accessMode, code);
    if (error)
        *error = code;
    return device;
}
