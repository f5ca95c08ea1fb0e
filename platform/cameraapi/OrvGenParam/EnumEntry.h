// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvGenParam {

/// One entry of an enumeration. Belongs to it, and its texts, which are UTF-8 and never null, to
/// the entry; they stay as they are. May be called on the same threads as its parameter.
class ORVCAMERAAPI_EXPORT EnumEntry
{
public:
    virtual ~EnumEntry() = default;

    virtual int64_t GetValue() const = 0;

    /// The name by which `Enum::SetSymbolicValue` knows it.
    virtual const char *GetSymbolic() const = 0;

    /// The name to show a user; the symbolic name when the description gives none.
    virtual const char *GetDisplayName() const = 0;

    /// False when the entry cannot be chosen at this moment.
    virtual bool IsAvailable() const = 0;
};

} // namespace OrvGenParam
