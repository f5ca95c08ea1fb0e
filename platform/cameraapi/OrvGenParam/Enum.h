// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/EnumEntry.h>
#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// An enumeration feature: a choice of named entries.
class ORVCAMERAAPI_EXPORT Enum : public Param
{
public:
    /// All entries, available or not, in the order of the camera's description.
    virtual uint32_t GetEntryCount() const = 0;

    /// Null for an index that is not below `GetEntryCount()`; may be null for one that is.
    virtual EnumEntry *GetEntry(uint32_t index) const = 0;

    /// 0 when reading fails.
    virtual int64_t GetIntValue(int32_t *error = nullptr) const = 0;
    virtual int32_t SetIntValue(int64_t value) = 0;

    /// The symbolic name of the current entry; empty when reading fails or the camera's value
    /// belongs to no entry. Valid until the next call of this operation on the same parameter.
    virtual const char *GetSymbolicValue(int32_t *error = nullptr) const = 0;
    virtual int32_t SetSymbolicValue(const char *symbolic) = 0;
};

} // namespace OrvGenParam
