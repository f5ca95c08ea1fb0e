// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// One entry of an enumeration.
struct GENAPI_DECL IEnumEntry : virtual public IValue
{
    virtual int64_t GetValue() = 0;
    virtual GenICam::gcstring GetSymbolic() const = 0;

    /// The numeric value of the entry; the integer value when the description gives none.
    virtual double GetNumericValue() = 0;

    /// True for an entry that the camera leaves by itself.
    virtual bool IsSelfClearing() = 0;
};

} // namespace GenApi_3_0
