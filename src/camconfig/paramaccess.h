// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGui {

/// The access modes of a parameter; false for null. They may be read from the camera.
inline bool isReadable(const OrvGenParam::Param *param)
{
    return param && param->IsAvailable() && param->IsReadable();
}

inline bool isWritable(const OrvGenParam::Param *param)
{
    return param && param->IsAvailable() && param->IsWritable();
}

} // namespace OrvGui
