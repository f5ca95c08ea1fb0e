/* SPDX-License-Identifier: MIT */
#pragma once

/*
 * For programs that acquire images with Aravis: shows the windows of this library for the program's
 * own camera while acquisition continues.
 *
 *     ArvCamera *camera = arv_camera_new(NULL, NULL);
 *     OrvCamDevice *device = OrvCam_AdoptArvDevice(arv_camera_get_device(camera), NULL);
 *     ... the device is used like one from OrvCam_CreateDevice ...
 *     OrvCam_ReleaseDevice(device);
 *     g_object_unref(camera);
 *
 * Only a library that was built with Aravis has these functions. Like those of orvcameraapi.h they
 * accept null, throw nothing and must be called on the thread that runs the default GLib main
 * context.
 */

#include <orvcameraapi.h>

/* Aravis's ArvDevice. Aravis's headers are not needed here, and may be included in any order. */
struct _ArvDevice;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Creates a device from an ArvDevice that the program has opened. Null on failure, with the reason
 * in *error unless error is null: OrvCam_ErrorInvalidArgument for null, OrvCam_ErrorBadDescription
 * for a device whose GenICam description is missing or invalid. Blocks while it reads the camera's
 * identity.
 *
 * The program keeps the ArvDevice, control of the camera and the stream, and uses them as before.
 * The new device holds a reference to the ArvDevice, which it drops some time after
 * OrvCam_ReleaseDevice; the program may drop its own reference before or after that. The new device
 * never takes or gives up control, and never starts or stops the acquisition by itself.
 *
 * Registers are read and written through the ArvDevice, on a thread of the library; an ArvDevice
 * may be used on several threads. Writes by the program itself, through Aravis's functions, are not
 * detected: the windows show them after the next read of the register, by polling or after a
 * feature on which it depends was set in a window.
 *
 * When the program does not control a GigE Vision camera at the time of the call, the device is
 * read-only, as with OrvCam_AccessMonitor. When Aravis reports that control is lost, the device
 * counts as disconnected (OrvCam::EventDisconnected). It is connected again
 * (OrvCam::EventReconnected) when the program regains control of a GigE Vision camera with
 * arv_gv_device_take_control. After any other loss the program opens the camera again and adopts
 * the new ArvDevice.
 *
 * Aravis's time-outs apply where they are longer than those of this library.
 */
ORVCAMERAAPI_EXPORT OrvCamDevice *OrvCam_AdoptArvDevice(struct _ArvDevice *device, int32_t *error);

/*
 * The ArvDevice of a device from OrvCam_AdoptArvDevice, without a new reference: it stays valid as
 * long as the device. Null for any other device.
 */
ORVCAMERAAPI_EXPORT struct _ArvDevice *OrvCam_GetArvDevice(const OrvCamDevice *device);

#ifdef __cplusplus
}
#endif
