/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAAPI_H
#define ORVCAMERAAPI_H

/*
 * The C functions of libOrvCameraApi: finding cameras, opening one, and its parameters. C++
 * programs include OrvCam.h and OrvGenParam.h as well, which declare what the objects can do; to C
 * programs they are opaque.
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
 * Null is a valid argument everywhere: a function that gets it in place of an object does nothing,
 * and returns null, zero or OrvCam_ErrorInvalidArgument. So the calls above can be chained, and
 * only the last result be looked at. No function throws. Call all of them from one thread, the one
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

/* What went wrong. The numbers are those of OrvCam::ErrorCode. */
enum {
    OrvCam_Success = 0,
    OrvCam_ErrorFailed = -1,          /* for no reason that has a code of its own */
    OrvCam_ErrorInvalidArgument = -2, /* a null or senseless argument */
    OrvCam_ErrorNotFound = -3,        /* no such parameter, or not of that kind */
    OrvCam_ErrorNotAvailable = -4,    /* it exists but cannot be used at this moment */
    OrvCam_ErrorAccessDenied = -5,    /* read-only, write-only, locked, or refused by the camera */
    OrvCam_ErrorOutOfRange = -6,      /* outside the limits or off the increment */
    OrvCam_ErrorTimeout = -7,         /* no answer in time */
    OrvCam_ErrorBusy = -8,            /* another program, or this one, has the camera open */
    OrvCam_ErrorGone = -9,            /* the camera is no longer there */
    OrvCam_ErrorWrongSubnet = -10,    /* the camera's address does not fit the adapter's subnet */
    OrvCam_ErrorBadDescription = -11  /* the camera's description cannot be understood */
};

/* OrvCam_GetAccessState. The numbers are those of OrvCam::AccessState. */
enum {
    OrvCam_AccessUnknown = 0,
    OrvCam_AccessReadWrite = 1,
    OrvCam_AccessReadOnly = 2,
    OrvCam_AccessNone = 3,
    OrvCam_AccessSubnetMismatch = 1001
};

/* OrvCam_CreateDevice. The numbers are those of OrvCam::AccessMode. */
enum {
    OrvCam_AccessMonitor = 1, /* read only; other programs may have control */
    OrvCam_AccessControl = 2  /* read and write; refused while another program has control */
};

/*
 * The camera system, made by the first call and shared by all; each call is paired with one
 * OrvCam_ReleaseSystem. Null when it cannot be made.
 *
 * When the environment variable ORVCAM_SIMULATION is set to a text other than "" and "0" at the
 * time the system is made, it consists of simulated cameras only and sends nothing anywhere.
 */
ORVCAMERAAPI_EXPORT OrvCamSystem *OrvCam_GetSystem(void);

/*
 * Gives back what OrvCam_GetSystem handed out. With the last release every camera record goes;
 * devices that were opened live on until they are released themselves.
 */
ORVCAMERAAPI_EXPORT void OrvCam_ReleaseSystem(OrvCamSystem *system);

/*
 * Looks for cameras on every interface, for at most timeoutMs milliseconds on each, and blocks so
 * long; 200 finds every camera that behaves. Returns OrvCam_Success, or the error of the first
 * interface that could not be searched; the cameras of all others are found nevertheless.
 */
ORVCAMERAAPI_EXPORT int32_t OrvCam_RefreshDevices(OrvCamSystem *system, uint32_t timeoutMs);

/* How many cameras the last OrvCam_RefreshDevices found; 0 before the first. */
ORVCAMERAAPI_EXPORT uint32_t OrvCam_GetDeviceCount(OrvCamSystem *system);

/*
 * One of the cameras that the last OrvCam_RefreshDevices found; null for an index that is not below
 * OrvCam_GetDeviceCount. It belongs to the system, is not to be released and stays valid as long as
 * the system, also when the camera disappears.
 */
ORVCAMERAAPI_EXPORT OrvCamDeviceInfo *OrvCam_GetDeviceInfo(OrvCamSystem *system, uint32_t index);

/*
 * What is known of a camera: UTF-8 texts, null where the camera says nothing. They stay valid until
 * the next search for cameras. The display name is the one to show a user; the user name the one
 * that a user gave the camera. The id names it among all cameras of the system: MAC address or
 * vendor and serial number. The interface description says what the camera is connected to. Display
 * name, id and interface description are never null.
 */
ORVCAMERAAPI_EXPORT const char *OrvCam_GetDisplayName(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetVendor(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetModel(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetSerial(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetVersionText(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetUserName(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetId(const OrvCamDeviceInfo *info);
ORVCAMERAAPI_EXPORT const char *OrvCam_GetInterfaceDescription(const OrvCamDeviceInfo *info);

/* How a camera can be opened, as of the last search; treat a number not listed above as unknown. */
ORVCAMERAAPI_EXPORT int32_t OrvCam_GetAccessState(const OrvCamDeviceInfo *info);

/*
 * Opens a camera. accessMode is OrvCam_AccessMonitor or OrvCam_AccessControl. Null on failure, with
 * the reason in *error unless error is null. The caller owns the device and ends it with
 * OrvCam_ReleaseDevice.
 */
ORVCAMERAAPI_EXPORT OrvCamDevice *OrvCam_CreateDevice(OrvCamDeviceInfo *deviceInfo, int32_t *error,
                                                      int32_t accessMode);

/*
 * Closes the camera. Whatever shows its parameters has to be ended before. Not from inside a
 * notification of one of its parameters.
 */
ORVCAMERAAPI_EXPORT void OrvCam_ReleaseDevice(OrvCamDevice *device);

/*
 * The parameters of an opened camera; null, with the reason in *error unless error is null, while
 * the camera is disconnected. They belong to the device and live as long as it. After a disconnect
 * the device may have others; the earlier ones stay safe to use, but no longer reach the camera.
 */
ORVCAMERAAPI_EXPORT OrvGenParamArray *OrvCam_GetParamArray(OrvCamDevice *device, int32_t *error);

/* The GenApi node map that parameters come from; it lives as long as they. */
ORVCAMERAAPI_EXPORT OrvGenApiNodeMap *OrvGenParam_GetNodeMap(const OrvGenParamArray *array,
                                                             int32_t *error);

/*
 * The node map of a device description without a camera: its registers live in memory and are 0 at
 * the beginning. fileName is in the encoding of the file system. Null on failure, with one line of
 * UTF-8 about it, cut to size bytes with the 0 at its end, in reason unless that is null. The
 * caller owns the node map and ends it with OrvGenParam_ReleaseNodeMap.
 */
ORVCAMERAAPI_EXPORT OrvGenApiNodeMap *OrvGenParam_LoadDescription(const char *fileName,
                                                                  char *reason, size_t size);

/*
 * Ends a node map that OrvGenParam_LoadDescription made; any other, and null, is left alone.
 * Whatever shows its features has to be ended before.
 */
ORVCAMERAAPI_EXPORT void OrvGenParam_ReleaseNodeMap(OrvGenApiNodeMap *nodeMap);

#ifdef __cplusplus
}
#endif

#endif
