// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvGenParam {

/// One entry of an enumeration. Belongs to it.
class ORVCAMERAAPI_EXPORT EnumEntry
{
public:
    virtual ~EnumEntry() = default;

    virtual int64_t GetValue() const = 0;
    virtual const char *GetSymbolic() const = 0;
    virtual const char *GetDisplayName() const = 0;

    /// False when the entry cannot be chosen at this moment.
    virtual bool IsAvailable() const = 0;
};

} // namespace OrvGenParam
