// SPDX-License-Identifier: MIT
#include <orvgenparamapi.h>

#include "hardwaresystem.h"
#include "simulatedsystem.h"
#include "utf8.h"

#include <OrvGenParam.h>
#include <description/nodemap.h>

#include <cstdlib>
#include <cstring>
#include <typeinfo>

namespace {

// The same types for C programs and C++ programs.
constexpr bool equal(int32_t c, int32_t cpp)
{
    return c == cpp;
}
static_assert(equal(OrvCam_Success, OrvCam::Success) &&
                  equal(OrvCam_ErrorFailed, OrvCam::ErrorFailed) &&
                  equal(OrvCam_ErrorInvalidArgument, OrvCam::ErrorInvalidArgument) &&
                  equal(OrvCam_ErrorNotFound, OrvCam::ErrorNotFound) &&
                  equal(OrvCam_ErrorNotAvailable, OrvCam::ErrorNotAvailable) &&
                  equal(OrvCam_ErrorAccessDenied, OrvCam::ErrorAccessDenied) &&
                  equal(OrvCam_ErrorOutOfRange, OrvCam::ErrorOutOfRange) &&
                  equal(OrvCam_ErrorTimeout, OrvCam::ErrorTimeout) &&
                  equal(OrvCam_ErrorBusy, OrvCam::ErrorBusy) &&
                  equal(OrvCam_ErrorGone, OrvCam::ErrorGone) &&
                  equal(OrvCam_ErrorWrongSubnet, OrvCam::ErrorWrongSubnet) &&
                  equal(OrvCam_ErrorBadDescription, OrvCam::ErrorBadDescription),
              "error codes differ");
static_assert(equal(OrvCam_AccessUnknown, OrvCam::AccessUnknown) &&
                  equal(OrvCam_AccessReadWrite, OrvCam::AccessReadWrite) &&
                  equal(OrvCam_AccessReadOnly, OrvCam::AccessReadOnly) &&
                  equal(OrvCam_AccessNone, OrvCam::AccessNone) &&
                  equal(OrvCam_AccessSubnetMismatch, OrvCam::AccessSubnetMismatch) &&
                  equal(OrvCam_AccessMonitor, OrvCam::AccessMonitor) &&
                  equal(OrvCam_AccessControl, OrvCam::AccessControl),
              "access codes differ");

bool isSimulationWanted()
{
    const char *wanted = std::getenv("ORVCAM_SIMULATION");
    return wanted && std::strcmp(wanted, "") != 0 && std::strcmp(wanted, "0") != 0;
}

std::shared_ptr<OrvCam::CameraSystem> makeSystem()
{
    if (isSimulationWanted())
        return std::make_shared<OrvCam::SimulatedSystem>();
    return std::make_shared<OrvCam::HardwareSystem>();
}

void store(int32_t *error, int32_t code)
{
    if (error)
        *error = code;
}

void store(char *reason, std::size_t size, const char *text)
{
    OrvCam::copyUtf8(OrvCam::validUtf8(text), reason, size);
}

// Only systems and records of this library have these functions.
OrvCam::CameraSystem *ours(OrvCamSystem *system)
{
    return dynamic_cast<OrvCam::CameraSystem *>(system);
}

template<class Handle, class Value>
Value get(const Handle *handle, Value (Handle::*getter)() const)
{
    return handle ? (handle->*getter)() : Value();
}

} // namespace

OrvCamSystem *OrvCam_GetSystem(void)
{
    try {
        return OrvCam::CameraSystem::acquire(makeSystem);
    } catch (...) {
        return nullptr;
    }
}

void OrvCam_ReleaseSystem(OrvCamSystem *system)
{
    if (system)
        system->Release();
}

int32_t OrvCam_RefreshDevices(OrvCamSystem *system, uint32_t timeoutMs)
{
    try {
        OrvCam::CameraSystem *known = ours(system);
        return known ? known->refreshDevices(timeoutMs) : OrvCam_ErrorInvalidArgument;
    } catch (...) {
        return OrvCam_ErrorFailed;
    }
}

uint32_t OrvCam_GetDeviceCount(OrvCamSystem *system)
{
    const OrvCam::CameraSystem *known = ours(system);
    return known ? static_cast<uint32_t>(known->devices().size()) : 0;
}

OrvCamDeviceInfo *OrvCam_GetDeviceInfo(OrvCamSystem *system, uint32_t index)
{
    return index < OrvCam_GetDeviceCount(system) ? ours(system)->devices()[index] : nullptr;
}

const char *OrvCam_GetDisplayName(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetDisplayName);
}

const char *OrvCam_GetVendor(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetVendor);
}

const char *OrvCam_GetModel(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetModel);
}

const char *OrvCam_GetSerial(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetSerial);
}

const char *OrvCam_GetVersionText(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetVersionText);
}

const char *OrvCam_GetUserName(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetUserName);
}

const char *OrvCam_GetId(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetId);
}

const char *OrvCam_GetInterfaceDescription(const OrvCamDeviceInfo *info)
{
    return info ? info->GetInterface()->GetDescription() : nullptr;
}

int32_t OrvCam_GetAccessState(const OrvCamDeviceInfo *info)
{
    return get(info, &OrvCamDeviceInfo::GetAccessState);
}

OrvCamDevice *OrvCam_CreateDevice(OrvCamDeviceInfo *deviceInfo, int32_t *error, int32_t accessMode)
{
    int32_t code = OrvCam_ErrorInvalidArgument;
    OrvCam::Device *device = nullptr;
    try {
        auto *record = dynamic_cast<OrvCam::DeviceRecord *>(deviceInfo);
        if (record && (accessMode == OrvCam_AccessMonitor || accessMode == OrvCam_AccessControl))
            device = record->open(accessMode, code);
    } catch (...) {
        code = OrvCam_ErrorFailed;
    }
    store(error, code);
    return device;
}

void OrvCam_ReleaseDevice(OrvCamDevice *device)
{
    if (device)
        device->Release();
}

OrvGenParamArray *OrvCam_GetParamArray(OrvCamDevice *device, int32_t *error)
{
    if (device)
        return device->GetParamArray(error);
    store(error, OrvCam_ErrorInvalidArgument);
    return nullptr;
}

OrvGenApiNodeMap *OrvGenParam_GetNodeMap(const OrvGenParamArray *array, int32_t *error)
{
    if (array)
        return array->GetNodeMap(error);
    store(error, OrvCam_ErrorInvalidArgument);
    return nullptr;
}

OrvGenApiNodeMap *OrvGenParam_LoadDescription(const char *fileName, char *reason, size_t size)
{
    try {
        store(reason, size, "");
        if (fileName)
            return OrvDescription::NodeMap::fromFile(fileName).release();
        store(reason, size, OrvCam_GetErrorText(OrvCam_ErrorInvalidArgument));
    } catch (const GenICam::GenericException &e) {
        store(reason, size, e.GetDescription());
    } catch (const std::exception &e) {
        store(reason, size, e.what());
    }
    return nullptr;
}

void OrvGenParam_ReleaseNodeMap(OrvGenApiNodeMap *nodeMap)
{
    // A node map of a camera derives from this class, and is owned by the camera.
    if (nodeMap && typeid(*nodeMap) == typeid(OrvDescription::NodeMap))
        delete nodeMap;
}

uint32_t OrvCameraApi_GetVersion()
{
    return ORVCAMERAAPI_VERSION;
}

const char *OrvCameraApi_GetVersionText()
{
    return ORVCAMERAAPI_VERSION_TEXT;
}
