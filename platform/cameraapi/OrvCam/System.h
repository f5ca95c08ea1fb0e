// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/InterfaceList.h>

namespace OrvCam {

/// All interfaces and cameras that this machine can reach. Not thread-safe: use it on one thread.
class ORVCAMERAAPI_EXPORT System
{
public:
    /// The interfaces whose type is in `typeMask` (`InterfaceType` bits); null on failure.
    virtual InterfaceList *GetInterfaceSet(uint32_t typeMask) = 0;

    /// Releases one reference of `OrvCam_GetSystem`. The last release destroys all interfaces and
    /// camera records. Open devices stay valid until they are released themselves.
    virtual void Release() = 0;

protected:
    virtual ~System() = default;
};

} // namespace OrvCam
