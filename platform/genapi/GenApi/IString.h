// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A text.
struct GENAPI_DECL IString : virtual public IValue
{
    virtual void SetValue(const GenICam::gcstring &Value, bool Verify = true) = 0;
    virtual IString &operator=(const GenICam::gcstring &Value) = 0;
    virtual GenICam::gcstring GetValue(bool Verify = false, bool IgnoreCache = false) = 0;
    virtual GenICam::gcstring operator()() = 0;
    virtual GenICam::gcstring operator*() = 0;

    /// In bytes.
    virtual int64_t GetMaxLength(bool Verify = false) = 0;
};

} // namespace GenApi_3_0
