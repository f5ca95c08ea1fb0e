// SPDX-License-Identifier: MIT
#pragma once

#include <OrvGenParam/Param.h>

namespace OrvGenParam {

/// A string feature; UTF-8.
class ORVCAMERAAPI_EXPORT String : public Param
{
public:
    /// Empty when reading fails. Valid until the next call of this function on the same parameter.
    virtual const char *GetValue(int32_t *error = nullptr) const = 0;
    virtual int32_t SetValue(const char *value) = 0;

    /// In bytes; 0 when reading fails.
    virtual int64_t GetMaxLength(int32_t *error = nullptr) const = 0;
};

} // namespace OrvGenParam
