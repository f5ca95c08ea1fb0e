// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvCam {

class DeviceInfo;

/// A list of camera records. Belongs to the caller, which releases it (an empty list need not be
/// released). The entries belong to the system.
class ORVCAMERAAPI_EXPORT DeviceInfoList
{
public:
    virtual uint32_t GetCount() const = 0;

    /// Starts an iteration; null when the list is empty.
    virtual DeviceInfo *GetFirst() = 0;

    /// The next entry of the iteration; null after the last.
    virtual DeviceInfo *GetNext() = 0;

    /// Frees the list. The entries stay valid.
    virtual void Release() = 0;

protected:
    virtual ~DeviceInfoList() = default;
};

} // namespace OrvCam
