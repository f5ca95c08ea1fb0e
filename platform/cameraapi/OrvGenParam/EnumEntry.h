// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvGenParam {

/// One entry of an enumeration, which owns it. Its texts are UTF-8, never null and constant, and
/// belong to the entry. May be called on the same threads as its parameter.
class ORVCAMERAAPI_EXPORT EnumEntry
{
public:
    virtual ~EnumEntry() = default;

    virtual int64_t GetValue() const = 0;

    /// The name for `Enum::SetSymbolicValue`.
    virtual const char *GetSymbolic() const = 0;

    /// The name to display; the symbolic name when the description gives none.
    virtual const char *GetDisplayName() const = 0;

    /// False when the entry cannot be chosen at present.
    virtual bool IsAvailable() const = 0;
};

} // namespace OrvGenParam
