// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// A floating-point feature. A failed read returns 0 and sets `*error`.
class ORVCAMERAAPI_EXPORT Float : public Param
{
public:
    virtual double GetValue(int32_t *error = nullptr) const = 0;
    virtual int32_t SetValue(double value) = 0;
    virtual double GetMin(int32_t *error = nullptr) const = 0;
    virtual double GetMax(int32_t *error = nullptr) const = 0;

    /// 0 when every value within the limits is valid.
    virtual double GetInc(int32_t *error = nullptr) const = 0;

    /// Empty for a number without a unit.
    virtual const char *GetUnit() const = 0;
};

} // namespace OrvGenParam
