// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/DeviceInfoList.h>

namespace OrvGenParam {
class Array;
}

namespace OrvCam {

/// An interface through which cameras are connected: a network adapter, the USB host, or a
/// simulated interface. Belongs to the system.
class ORVCAMERAAPI_EXPORT Interface
{
public:
    virtual ~Interface() = default;

    /// Searches for cameras. Blocks for at most `timeoutMs` milliseconds. `changed`, when not null,
    /// reports whether anything has changed since the previous search. Records handed out earlier
    /// stay valid.
    ///
    /// All network adapters are searched at the same time. After the search of the first adapter,
    /// the next call on each of the others returns the results of that search at once, provided
    /// that it follows within half a second and with no longer time-out. An adapter without
    /// carrier adds no delay. Cameras beyond the first 256 are not listed; the description states
    /// their number.
    ///
    /// The positions of the cameras may change. Do not search while a window that shows them, such
    /// as a camera picker, is open. Returns an `ErrorCode`: `ErrorBusy` while another thread
    /// executes "GevDeviceForceIP" of this interface.
    virtual int32_t RefreshDevices(bool *changed, uint32_t timeoutMs) = 0;

    /// The cameras found by the last `RefreshDevices`, always in the same order; the position is
    /// the camera's "DeviceSelector" value. Null when the interface cannot list cameras.
    virtual DeviceInfoList *GetDeviceInfoSet() = 0;

    /// UTF-8, never null, valid until the next `RefreshDevices` or `System::GetInterfaceSet`.
    virtual const char *GetDescription() const = 0;

    /// A `TransportKind`; any other value is a custom kind.
    virtual int32_t GetTransportKind() const = 0;

    /// UTF-8, may be null.
    virtual const char *GetVersionText() const = 0;

    /// The interface's own parameters and those of its selected camera; null when it has none.
    virtual OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) = 0;
};

} // namespace OrvCam
