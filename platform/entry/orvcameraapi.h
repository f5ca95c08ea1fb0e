/* SPDX-License-Identifier: MIT */
#pragma once

/*
 * The C functions of libOrvCameraApi: they find cameras, open one, and return its parameters. C++
 * programs include OrvCam.h and OrvGenParam.h as well, which declare the classes of the objects. In
 * C the objects are opaque.
 *
 *     OrvCamSystem *system = OrvCam_GetSystem();
 *     OrvCam_RefreshDevices(system, 200);
 *     OrvCamDeviceInfo *info = OrvCam_GetDeviceInfo(system, 0);
 *     OrvCamDevice *device = OrvCam_CreateDevice(info, NULL, OrvCam_AccessControl);
 *     OrvGenParamArray *parameters = OrvCam_GetParamArray(device, NULL);
 *     ...
 *     OrvCam_ReleaseDevice(device);
 *     OrvCam_ReleaseSystem(system);
 *
 * Null is a valid argument everywhere: a function that gets null in place of an object does nothing
 * and returns null, zero or OrvCam_ErrorInvalidArgument. The calls above can therefore be chained,
 * and only the last result checked. No function throws. Call all of them on one thread, the one
 * that runs the default GLib main context (in a Qt program the main thread).
 */

#include <OrvCam/Export.h>
#include <OrvCam/Version.h>

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#include <GenApi/INodeMap.h>
namespace OrvCam {
class Device;
class DeviceInfo;
class System;
} // namespace OrvCam
namespace OrvGenParam {
class Array;
}
typedef OrvCam::Device OrvCamDevice;
typedef OrvCam::DeviceInfo OrvCamDeviceInfo;
typedef OrvCam::System OrvCamSystem;
typedef OrvGenParam::Array OrvGenParamArray;
typedef GenApi::INodeMap OrvGenApiNodeMap;
extern "C" {
#else
typedef struct OrvCamDevice OrvCamDevice;
typedef struct OrvCamDeviceInfo OrvCamDeviceInfo;
typedef struct OrvCamSystem OrvCamSystem;
typedef struct OrvGenParamArray OrvGenParamArray;
typedef struct OrvGenApiNodeMap OrvGenApiNodeMap;
#endif

/* Error codes, with the numbers of OrvCam::ErrorCode. */
enum {
    OrvCam_Success = 0,
    OrvCam_ErrorFailed = -1,          /* any failure without a code of its own */
    OrvCam_ErrorInvalidArgument = -2, /* an argument is null or invalid */
    OrvCam_ErrorNotFound = -3,        /* no parameter of that name and type */
    OrvCam_ErrorNotAvailable = -4,    /* the parameter exists but cannot be used at present */
    OrvCam_ErrorAccessDenied = -5,    /* read-only, write-only, locked, or refused by the camera */
    OrvCam_ErrorOutOfRange = -6,      /* outside the limits or off the increment */
    OrvCam_ErrorTimeout = -7,         /* no answer in time */
    OrvCam_ErrorBusy = -8,            /* another program, or this one, has the camera open */
    OrvCam_ErrorGone = -9,            /* the camera is no longer there */
    OrvCam_ErrorWrongSubnet = -10,    /* the camera's address does not fit the adapter's subnet */
    OrvCam_ErrorBadDescription = -11  /* the camera's description cannot be understood */
};

/* Results of OrvCam_GetAccessState, with the numbers of OrvCam::AccessState. */
enum {
    OrvCam_AccessUnknown = 0,
    OrvCam_AccessReadWrite = 1,
    OrvCam_AccessReadOnly = 2,
    OrvCam_AccessNone = 3,
    OrvCam_AccessSubnetMismatch = 1001
};

/* Access modes of OrvCam_CreateDevice, with the numbers of OrvCam::AccessMode. */
enum {
    OrvCam_AccessMonitor = 1, /* read only; other programs may have control */
    OrvCam_AccessControl = 2  /* read and write; refused while another program has control */
};

/*
 * The camera system. The first call creates it, later calls return the same one. Each call is
 * paired with one OrvCam_ReleaseSystem. Null when the system cannot be created.
 *
 * When the environment variable ORVCAM_SIMULATION is set to a text other than "" and "0" at the
 * time the system is created, the system has simulated cameras only and sends nothing to any
 * network.
 */
ORVCAMERAAPI_EXPORT OrvCamSystem *OrvCam_GetSystem(void);

/*
 * Releases one reference of OrvCam_GetSystem. The last release destroys all camera records. Open
 * devices stay valid until they are released themselves.
 */
ORVCAMERAAPI_EXPORT void OrvCam_ReleaseSystem(OrvCamSystem *system);

/*
 * Searches all interfaces for cameras. Blocks for at most timeoutMs milliseconds for all network
 * adapters together; 200 suffices for cameras that conform to the standard. Returns OrvCam_Success,
 * or the error of the first interface that could not be searched; the cameras of all others are
 * found nevertheless.
 */
ORVCAMERAAPI_EXPORT int32_t OrvCam_RefreshDevices(OrvCamSystem *system, uint32_t timeoutMs);

/* The number of cameras that the last OrvCam_RefreshDevices found; 0 before the first. */
ORVCAMERAAPI_EXPORT uint32_t OrvCam_GetDeviceCount(OrvCamSystem *system);

/*
 * The record of one camera that the last OrvCam_RefreshDevices found; null for an index that is not
 * below OrvCam_GetDeviceCount. The record belongs to the system and must not be released. It stays
 * valid as long as the system, even when the camera disappears. Only beyond 1024 cameras on one
 * interface may a new camera reuse the record of an absent one.
 */
ORVCAMERAAPI_EXPORT OrvCamDeviceInfo *OrvCam_GetDeviceInfo(OrvCamSystem *system, uint32_t index);

/*
 * The texts of a camera record: UTF-8, null where the camera gives none, and valid until the next
 * search for cameras. The display name is the one to show; the user name is the user-defined name
 * in the camera. The id identifies the camera in the system: the MAC address, or vendor and serial
 * number. The interface description names the interface of the camera. Display name, id and
 * interface description are never null.
 */
ORVCAMERAAPI_EXPORT const char *OrvCam_GetDisplayName(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetVendor(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetModel(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetSerial(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetVersionText(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetUserName(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetId(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetInterfaceDescription(const OrvCamDeviceInfo *info);

/*
 * The access state of a camera, as of the last search or of an address set since then. Treat a
 * number that is not listed above as unknown.
 */
ORVCAMERAAPI_EXPORT int32_t OrvCam_GetAccessState(const OrvCamDeviceInfo *info);

/*
 * Opens a camera. accessMode is OrvCam_AccessMonitor or OrvCam_AccessControl. Null on failure, with
 * the reason in *error unless error is null. The caller owns the device and releases it with
 * OrvCam_ReleaseDevice.
 */
ORVCAMERAAPI_EXPORT OrvCamDevice *OrvCam_CreateDevice(OrvCamDeviceInfo *deviceInfo, int32_t *error,
                                                      int32_t accessMode);

/*
 * Closes the camera. Windows that show its parameters must be destroyed first. Must not be called
 * from inside a notification of one of its parameters.
 */
ORVCAMERAAPI_EXPORT void OrvCam_ReleaseDevice(OrvCamDevice *device);

/*
 * The parameters of an open camera; null, with the reason in *error unless error is null, while the
 * camera is disconnected. They belong to the device, live as long as it and are the same after a
 * reconnect. While the camera is disconnected they fail with OrvCam_ErrorGone.
 */
ORVCAMERAAPI_EXPORT OrvGenParamArray *OrvCam_GetParamArray(OrvCamDevice *device, int32_t *error);

/* The GenApi node map of the parameters; it lives as long as they do. */
ORVCAMERAAPI_EXPORT OrvGenApiNodeMap *OrvGenParam_GetNodeMap(const OrvGenParamArray *array,
                                                             int32_t *error);

/*
 * Loads a device description without a camera. The registers of its node map are in memory and
 * initially 0. fileName is in the encoding of the file system. Null on failure; reason, unless it
 * is null, then receives one line of UTF-8, truncated to size bytes including the terminating 0.
 * The caller owns the node map and destroys it with OrvGenParam_ReleaseNodeMap.
 */
ORVCAMERAAPI_EXPORT OrvGenApiNodeMap *OrvGenParam_LoadDescription(const char *fileName,
                                                                  char *reason, size_t size);

/*
 * Destroys a node map from OrvGenParam_LoadDescription; ignores any other, and null. Windows that
 * show its features must be destroyed first.
 */
ORVCAMERAAPI_EXPORT void OrvGenParam_ReleaseNodeMap(OrvGenApiNodeMap *nodeMap);

#ifdef __cplusplus
}
#endif
