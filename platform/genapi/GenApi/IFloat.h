// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Autovector.h>
#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A floating-point number.
struct GENAPI_DECL IFloat : virtual public IValue
{
    virtual void SetValue(double Value, bool Verify = true) = 0;
    virtual IFloat &operator=(double Value) = 0;
    virtual double GetValue(bool Verify = false, bool IgnoreCache = false) = 0;
    virtual double operator()() = 0;
    virtual double operator*() = 0;
    virtual double GetMin() = 0;
    virtual double GetMax() = 0;
    virtual bool HasInc() = 0;
    virtual EIncMode GetIncMode() = 0;
    virtual double GetInc() = 0;

    /// As for integers.
    virtual double_autovector_t GetListOfValidValues(bool bounded = true) = 0;
    virtual ERepresentation GetRepresentation() = 0;
    virtual GenICam::gcstring GetUnit() const = 0;
    virtual EDisplayNotation GetDisplayNotation() const = 0;
    virtual int64_t GetDisplayPrecision() const = 0;
    virtual void ImposeMin(double Value) = 0;
    virtual void ImposeMax(double Value) = 0;
};

} // namespace GenApi_3_0
