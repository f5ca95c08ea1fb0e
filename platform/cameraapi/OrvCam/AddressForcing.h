// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

namespace OrvCam {

/// Implemented by interfaces that can abort the execution of their parameter "GevDeviceForceIP".
/// Query an `Interface` for it with `dynamic_cast`.
class ORVCAMERAAPI_EXPORT AddressForcing
{
public:
    /// Makes the execution that is running on another thread fail within 0.2 s; the camera may
    /// still take the address. Does nothing when none is running. May be called on any thread.
    virtual void giveUp() = 0;

protected:
    virtual ~AddressForcing() = default;
};

} // namespace OrvCam
