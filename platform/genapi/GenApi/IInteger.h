// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A 64-bit integer.
struct GENAPI_DECL IInteger : virtual public IValue
{
    virtual void SetValue(int64_t Value, bool Verify = true) = 0;
    virtual IInteger &operator=(int64_t Value) = 0;
    virtual int64_t GetValue(bool Verify = false, bool IgnoreCache = false) = 0;
    virtual int64_t operator()() = 0;
    virtual int64_t operator*() = 0;
    virtual int64_t GetMin() = 0;
    virtual int64_t GetMax() = 0;
    virtual EIncMode GetIncMode() = 0;

    /// 1 when there is no increment.
    virtual int64_t GetInc() = 0;

    /// The values of a list increment in the order of the description; `bounded` omits those
    /// outside the limits. Empty for the other increment modes.
    virtual int64_autovector_t GetListOfValidValues(bool bounded = true) = 0;
    virtual ERepresentation GetRepresentation() = 0;
    virtual GenICam::gcstring GetUnit() = 0;
    virtual void ImposeMin(int64_t Value) = 0;
    virtual void ImposeMax(int64_t Value) = 0;
};

} // namespace GenApi_3_0
