// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvCam {

class Interface;

/// The record of one discovered camera. Belongs to the system and stays valid as long as the
/// system, even when the camera disappears. Only beyond 1024 cameras on one interface does a new
/// camera reuse the record of the camera that has been absent the longest and is not open. Texts
/// are UTF-8, null where the camera gives none, and valid until the interface's next
/// `RefreshDevices`. Call its functions on the thread that uses the system.
class ORVCAMERAAPI_EXPORT DeviceInfo
{
public:
    virtual ~DeviceInfo() = default;

    /// The name to display. Never null.
    virtual const char *GetDisplayName() const = 0;
    virtual const char *GetVendor() const = 0;
    virtual const char *GetModel() const = 0;
    virtual const char *GetSerial() const = 0;
    virtual const char *GetVersionText() const = 0;

    /// The user-defined name of the camera.
    virtual const char *GetUserName() const = 0;

    /// An `AccessState`, as of the last discovery or of an address set since then. Treat any other
    /// number as `AccessUnknown`.
    virtual int32_t GetAccessState() const = 0;

    /// The interface on which the camera was found. Never null.
    virtual Interface *GetInterface() const = 0;

    /// The unique identifier of the camera in the system: the MAC address, or vendor and serial
    /// number. Never null.
    virtual const char *GetId() const = 0;
};

} // namespace OrvCam
