// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// A 64-bit integer feature. A failed read returns 0 and sets `*error`.
class ORVCAMERAAPI_EXPORT Int : public Param
{
public:
    virtual int64_t GetValue(int32_t *error = nullptr) const = 0;
    virtual int32_t SetValue(int64_t value) = 0;
    virtual int64_t GetMin(int32_t *error = nullptr) const = 0;
    virtual int64_t GetMax(int32_t *error = nullptr) const = 0;

    /// 1 when every value within the limits is valid.
    virtual int64_t GetInc(int32_t *error = nullptr) const = 0;

    /// Empty for a number without a unit.
    virtual const char *GetUnit() const = 0;
};

} // namespace OrvGenParam
