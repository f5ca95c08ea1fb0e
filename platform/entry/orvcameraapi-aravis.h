/* SPDX-License-Identifier: MIT */
#ifndef ORVCAMERAAPI_ARAVIS_H
#define ORVCAMERAAPI_ARAVIS_H

/*
 * For programs that grab images with Aravis: the windows of this library on the program's own
 * camera, while it goes on grabbing.
 *
 *     ArvCamera *camera = arv_camera_new(NULL, NULL);
 *     OrvCamDevice *device = OrvCam_AdoptArvDevice(arv_camera_get_device(camera), NULL);
 *     ... the device is used like one from OrvCam_CreateDevice ...
 *     OrvCam_ReleaseDevice(device);
 *     g_object_unref(camera);
 *
 * Only a library that was built with Aravis has these functions. As those of orvcameraapi.h they
 * accept null, throw nothing and are to be called from the thread that runs the default GLib main
 * context.
 */

#include <orvcameraapi.h>

/* Aravis's ArvDevice. Aravis's headers are not needed here, and may be included in any order. */
struct _ArvDevice;

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Makes a device of one that the program has opened with Aravis. Null on failure, with the reason
 * in *error unless error is null: OrvCam_ErrorInvalidArgument for null, OrvCam_ErrorBadDescription
 * for a device whose GenICam description is missing or cannot be understood. Reads who the camera
 * is, and blocks so long.
 *
 * The program keeps the ArvDevice, control of the camera, its stream and everything that it does
 * with them. The new device holds a reference to the ArvDevice, which it gives back some time after
 * OrvCam_ReleaseDevice; it may be released before or after the program's own reference. It never
 * takes or leaves control, and starts or stops nothing by itself.
 *
 * Registers are read and written through the ArvDevice, on a thread of the library; the ArvDevice
 * allows that while the program uses it on others. What the program writes itself, through Aravis's
 * functions, is not noticed: the windows show it as soon as they read the register again, by
 * polling or since a feature that it depends on was set in them.
 *
 * When the program has no control of a GigE Vision camera at the time of the call, the device is
 * one for reading, as with OrvCam_AccessMonitor. When Aravis says that control is lost, the device
 * counts as disconnected (OrvCam::EventDisconnected); it is connected again
 * (OrvCam::EventReconnected) when the program gets control of a GigE Vision camera back with
 * arv_gv_device_take_control. After any other loss the program opens the camera anew and adopts the
 * new ArvDevice.
 *
 * Waiting for a camera that does not answer follows Aravis's time-outs where they are longer than
 * those of this library.
 */
ORVCAMERAAPI_EXPORT OrvCamDevice *OrvCam_AdoptArvDevice(struct _ArvDevice *device, int32_t *error);

/*
 * The ArvDevice of a device made by OrvCam_AdoptArvDevice, without a new reference: it stays valid
 * as long as the device. Null for every other device.
 */
ORVCAMERAAPI_EXPORT struct _ArvDevice *OrvCam_GetArvDevice(const OrvCamDevice *device);

#ifdef __cplusplus
}
#endif

#endif
