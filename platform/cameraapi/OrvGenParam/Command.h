// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// A command feature.
class ORVCAMERAAPI_EXPORT Command : public Param
{
public:
    /// Blocks until the camera has accepted the command, not until it has finished; see `IsDone`.
    /// Only "GevDeviceForceIP" of an interface waits for the result: at most five seconds for the
    /// camera to acknowledge the new address, and ten more for the camera to reappear with it. It
    /// fails for a camera that shares its MAC address with another one.
    virtual int32_t Execute() = 0;

    /// True when the last execution has finished. Reads from the camera; false when that fails.
    virtual bool IsDone(int32_t *error = nullptr) const = 0;
};

} // namespace OrvGenParam
