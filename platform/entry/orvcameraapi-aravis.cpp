// SPDX-License-Identifier: MIT
#include "orvcameraapi-aravis.h"

#include "adoptedsystem.h"

OrvCamDevice *OrvCam_AdoptArvDevice(struct _ArvDevice *device, int32_t *error)
{
    int32_t code = OrvCam_ErrorInvalidArgument;
    OrvCam::Device *adopted = nullptr;
    try {
        if (device)
            adopted = OrvCam::AdoptedSystem::open(OrvAravis::AdoptedDevice(device), code);
    } catch (...) {
        code = OrvCam_ErrorFailed;
    }
    if (error)
        *error = code;
    return adopted;
}

struct _ArvDevice *OrvCam_GetArvDevice(const OrvCamDevice *device)
{
    const OrvCam::DeviceInfo *info = device ? device->GetDeviceInfo() : nullptr;
    const auto *interface =
        info ? dynamic_cast<const OrvCam::AdoptedInterface *>(info->GetInterface()) : nullptr;
    return interface ? interface->adopted().get() : nullptr;
}
