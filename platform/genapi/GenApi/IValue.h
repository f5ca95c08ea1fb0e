// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IBase.h>

namespace GenApi_3_0 {

struct INode;

/// A node with a value that can be written as text.
struct GENAPI_DECL IValue : virtual public IBase
{
    virtual INode *GetNode() = 0;

    /// The value as text. `Verify` checks access and range; `IgnoreCache` reads from the camera.
    virtual GenICam::gcstring ToString(bool Verify = false, bool IgnoreCache = false) = 0;

    /// Sets the value from a text in the format of `ToString`.
    virtual void FromString(const GenICam::gcstring &ValueStr, bool Verify = true) = 0;

    /// True when reading the value costs no camera transaction.
    virtual bool IsValueCacheValid() const = 0;
};

} // namespace GenApi_3_0
