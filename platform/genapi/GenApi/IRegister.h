// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// Raw bytes in the camera. Its text is "0x" and two hexadecimal digits per byte.
struct GENAPI_DECL IRegister : virtual public IValue
{
    virtual void Set(const uint8_t *pBuffer, int64_t Length, bool Verify = true) = 0;
    virtual void Get(uint8_t *pBuffer, int64_t Length, bool Verify = false,
                     bool IgnoreCache = false) = 0;

    /// In bytes.
    virtual int64_t GetLength(bool Verify = false) = 0;
    virtual int64_t GetAddress(bool Verify = false) = 0;
};

} // namespace GenApi_3_0
