// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

namespace OrvCam {

/// What an interface can do when the execution of "GevDeviceForceIP", one of its parameters, can be
/// given up. Ask an `Interface` for it with `dynamic_cast`.
class ORVCAMERAAPI_EXPORT AddressForcing
{
public:
    /// Has the execution that is under way on another thread fail within 0.2 s, whatever becomes of
    /// the camera; without one it does nothing. May be called on any thread.
    virtual void giveUp() = 0;

protected:
    virtual ~AddressForcing() = default;
};

} // namespace OrvCam
