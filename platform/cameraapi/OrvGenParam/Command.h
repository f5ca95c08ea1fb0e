// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// Something that the camera can be told to do.
class ORVCAMERAAPI_EXPORT Command : public Param
{
public:
    /// Blocks until the camera has taken the command, not until it has carried it out, which
    /// `IsDone` tells. Only "GevDeviceForceIP" of an interface waits for the outcome: at most five
    /// seconds for the camera to acknowledge the new address, and ten more for it to come back with
    /// it. It fails for a camera that shares its MAC address with another one.
    virtual int32_t Execute() = 0;

    /// True when the last execution is finished; asks the camera. False when that fails.
    virtual bool IsDone(int32_t *error = nullptr) const = 0;
};

} // namespace OrvGenParam
