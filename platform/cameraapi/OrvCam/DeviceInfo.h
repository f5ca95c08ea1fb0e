// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvCam {

class Interface;

/// What discovery found out about one camera. Belongs to the system and stays valid as long as it,
/// also when the camera disappears. Only after more than 1024 cameras on one interface, a new one
/// gets the record of the camera that has been gone the longest and is not open. Texts are UTF-8,
/// null where the camera says nothing, and stay valid until the interface's next `RefreshDevices`.
/// To be called on the one thread that uses the system.
class ORVCAMERAAPI_EXPORT DeviceInfo
{
public:
    virtual ~DeviceInfo() = default;

    /// The name to show a user. Never null.
    virtual const char *GetDisplayName() const = 0;
    virtual const char *GetVendor() const = 0;
    virtual const char *GetModel() const = 0;
    virtual const char *GetSerial() const = 0;
    virtual const char *GetVersionText() const = 0;

    /// The name that a user gave the camera.
    virtual const char *GetUserName() const = 0;

    /// An `AccessState`, as of the last discovery or of an address that the camera was given since;
    /// treat an unknown code as unknown.
    virtual int32_t GetAccessState() const = 0;

    /// The interface on which the camera was found. Never null.
    virtual Interface *GetInterface() const = 0;

    /// Names the camera among all cameras of the system: MAC address or vendor and serial number.
    /// Never null.
    virtual const char *GetId() const = 0;
};

} // namespace OrvCam
