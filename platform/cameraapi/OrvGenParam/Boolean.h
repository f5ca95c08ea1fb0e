// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// A Boolean feature. A failed read returns false and sets `*error`.
class ORVCAMERAAPI_EXPORT Boolean : public Param
{
public:
    virtual bool GetValue(int32_t *error = nullptr) const = 0;
    virtual int32_t SetValue(bool value) = 0;
};

} // namespace OrvGenParam
