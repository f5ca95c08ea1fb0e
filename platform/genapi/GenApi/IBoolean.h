// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A Boolean. Its text is "1" or "0"; "true" and "false" are accepted, too.
struct GENAPI_DECL IBoolean : virtual public IValue
{
    virtual void SetValue(bool Value, bool Verify = true) = 0;
    virtual IBoolean &operator=(bool Value) = 0;
    virtual bool GetValue(bool Verify = false, bool IgnoreCache = false) const = 0;
    virtual bool operator()() const = 0;
};

} // namespace GenApi_3_0
