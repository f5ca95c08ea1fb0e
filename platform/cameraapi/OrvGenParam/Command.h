// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// Something that the camera can be told to do.
class ORVCAMERAAPI_EXPORT Command : public Param
{
public:
    virtual int32_t Execute() = 0;

    /// True when the last execution is finished; asks the camera.
    virtual bool IsDone(int32_t *error = nullptr) const = 0;
};

} // namespace OrvGenParam
