/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAAPI_H
#define ORVCAMERAAPI_H

/*
 * The C functions of libOrvCameraApi. C++ programs include OrvCam.h as well, which declares what
 * the objects can do; to C programs they are opaque.
 */

#include <stdint.h>

#ifdef __cplusplus
namespace OrvCam {
class Device;
class DeviceInfo;
class System;
} // namespace OrvCam
typedef OrvCam::Device OrvCamDevice;
typedef OrvCam::DeviceInfo OrvCamDeviceInfo;
typedef OrvCam::System OrvCamSystem;
extern "C" {
#else
typedef struct OrvCamDevice OrvCamDevice;
typedef struct OrvCamDeviceInfo OrvCamDeviceInfo;
typedef struct OrvCamSystem OrvCamSystem;
#endif

/*
 * The camera system, made by the first call and shared by all; each call is paired with one
 * System::Release. Null when it cannot be made.
 *
 * When the environment variable ORVCAM_SIMULATION is set to a text other than "" and "0" at the
 * time the system is made, it consists of simulated cameras only and sends nothing anywhere.
 */
__attribute__((visibility("default"))) OrvCamSystem *OrvCam_GetSystem(void);

/*
 * Opens a camera. accessMode is 1 to read only or 2 to control it. Null on failure, with the
 * reason (an OrvCam::ErrorCode) in *error unless error is null. The caller owns the device and
 * ends it with Device::Release.
 */
__attribute__((visibility("default"))) OrvCamDevice *
OrvCam_CreateDevice(OrvCamDeviceInfo *deviceInfo, int32_t *error, int32_t accessMode);

#ifdef __cplusplus
}
#endif

#endif
