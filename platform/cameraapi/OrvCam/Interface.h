// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/DeviceInfoList.h>

namespace OrvGenParam {
class Array;
}

namespace OrvCam {

/// Something that cameras are connected to: a network adapter, the USB host, a simulated one.
/// Belongs to the system.
class ORVCAMERAAPI_EXPORT Interface
{
public:
    virtual ~Interface() = default;

    /// Looks for cameras, for at most `timeoutMs` milliseconds, and blocks so long. `changed`, when
    /// not null, tells whether anything differs from before. Records handed out earlier stay valid.
    ///
    /// Network adapters are searched all at once: after the first one's turn, each of the others
    /// answers its next call at once from what came then, if that call follows within half a second
    /// and gives no longer time. An adapter without carrier is not waited for. Cameras beyond the
    /// first 256 are not listed; the description gives their number.
    ///
    /// The positions of the cameras may change, so do not look for cameras while a window is open
    /// that shows them, such as a camera picker. Returns an `ErrorCode`, `ErrorBusy` while another
    /// thread executes "GevDeviceForceIP" of this interface.
    virtual int32_t RefreshDevices(bool *changed, uint32_t timeoutMs) = 0;

    /// The cameras found by the last `RefreshDevices`, always in the same order; the position is
    /// the camera's "DeviceSelector" value. Null when the interface cannot list cameras.
    virtual DeviceInfoList *GetDeviceInfoSet() = 0;

    /// UTF-8, never null, valid until the next `RefreshDevices` or `System::GetInterfaceSet`.
    virtual const char *GetDescription() const = 0;

    /// A `TransportKind`; other values are custom kinds.
    virtual int32_t GetTransportKind() const = 0;

    /// UTF-8, may be null.
    virtual const char *GetVersionText() const = 0;

    /// The interface's own parameters and those of its selected camera; null when it has none.
    virtual OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) = 0;
};

} // namespace OrvCam
