// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvCam {

class DeviceInfo;

/// A list of camera records. Belongs to the caller, who releases it (an empty one need not be); the
/// entries belong to the system.
class ORVCAMERAAPI_EXPORT DeviceInfoList
{
public:
    virtual uint32_t GetCount() const = 0;

    /// Starts a walk; null when the list is empty.
    virtual DeviceInfo *GetFirst() = 0;

    /// The entry after the last one handed out; null after the last.
    virtual DeviceInfo *GetNext() = 0;

    /// Frees the list. The entries stay valid.
    virtual void Release() = 0;

protected:
    virtual ~DeviceInfoList() = default;
};

} // namespace OrvCam
