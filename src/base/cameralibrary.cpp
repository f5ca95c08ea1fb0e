// SPDX-License-Identifier: MIT
#include "base/cameralibrary.h"

#ifdef ORV_FIND_CAMERA_LIBRARY
#include <dlfcn.h>
#endif

namespace OrvGui {
namespace CameraLibrary {
namespace {

#ifdef ORV_FIND_CAMERA_LIBRARY
template<typename Function>
Function *function(Function *, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_DEFAULT, name));
}
#define ORV_FUNCTION(name) function(decltype(&name)(), #name)
#else
#define ORV_FUNCTION(name) (&name)
#endif

auto systemFunction()
{
    return ORV_FUNCTION(OrvCam_GetSystem);
}

auto deviceFunction()
{
    return ORV_FUNCTION(OrvCam_CreateDevice);
}

} // namespace

OrvCam::System *system()
{
    const auto getSystem = systemFunction();
    return getSystem ? getSystem() : nullptr;
}

OrvCam::Device *createDevice(OrvCam::DeviceInfo &camera, int32_t *error, int32_t accessMode)
{
    if (const auto create = deviceFunction())
        return create(&camera, error, accessMode);
    if (error)
        *error = OrvCam::ErrorFailed;
    return nullptr;
}

bool isPresent()
{
    return systemFunction() && deviceFunction();
}

} // namespace CameraLibrary
} // namespace OrvGui
