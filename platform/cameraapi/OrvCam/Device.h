// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Codes.h>
#include <OrvCam/Export.h>

namespace OrvGenParam {
class Array;
}

namespace OrvCam {

class DeviceInfo;

/// Called for an event of a device, with the `context` given at the registration. May run on a
/// thread of the library: only record the event.
using DeviceEventCallback = void (*)(int32_t eventCode, void *context);

/// An opened camera. Belongs to the caller of `OrvCam_CreateDevice`. All functions except `Release`
/// may be called on any thread.
class ORVCAMERAAPI_EXPORT Device
{
public:
    /// The camera's parameters; null with an error while the camera is disconnected. The array
    /// belongs to the device and is the same one after a reconnect: parameters, node map and sinks
    /// can be kept. The parameters fail with `ErrorGone` while the camera is disconnected.
    virtual OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) = 0;

    virtual bool IsConnected() const = 0;

    /// The record from which the device was opened.
    virtual DeviceInfo *GetDeviceInfo() const = 0;

    /// Registers a callback for one event (an `EventCode`). The same callback and context may be
    /// registered once per code; a second registration fails with `ErrorInvalidArgument`.
    virtual int32_t RegisterEvent(int32_t eventCode, DeviceEventCallback callback,
                                  void *context) = 0;

    /// Removes a registration; fails with `ErrorNotFound` when there is none. When it returns, the
    /// callback is not running on another thread and will not be called again.
    virtual int32_t UnregisterEvent(int32_t eventCode, DeviceEventCallback callback,
                                    void *context) = 0;

    /// Closes the camera and destroys the device. Event sinks of its parameters are notified once
    /// more, with parameters that are not available; after that nothing of the device may be used.
    /// Must be called on the thread that opened the device, and neither from a
    /// `DeviceEventCallback` nor from a notification of one of its parameters.
    virtual void Release() = 0;

protected:
    virtual ~Device() = default;
};

} // namespace OrvCam
