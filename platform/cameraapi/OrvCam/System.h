// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/InterfaceList.h>

namespace OrvCam {

/// All interfaces and cameras that this machine can reach. Not thread-safe: use it from one thread.
class ORVCAMERAAPI_EXPORT System
{
public:
    /// The interfaces whose type is in `typeMask` (`InterfaceType` bits); null on failure.
    virtual InterfaceList *GetInterfaceSet(uint32_t typeMask) = 0;

    /// Gives back what `OrvCam_GetSystem` handed out. With the last release every interface and
    /// camera record goes; devices that were opened live on until they are released themselves.
    virtual void Release() = 0;

protected:
    virtual ~System() = default;
};

} // namespace OrvCam
