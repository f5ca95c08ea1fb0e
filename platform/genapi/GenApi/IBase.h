// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Types.h>

namespace GenApi_3_0 {

/// The base class of all node interfaces. Nodes may be deleted through it.
struct GENAPI_DECL IBase
{
    virtual ~IBase() = default;

    /// The present access mode. May need camera transactions (availability, locks).
    virtual EAccessMode GetAccessMode() const = 0;
};

/// True for `RO` and `RW`.
inline bool IsReadable(EAccessMode mode)
{
    return mode == RO || mode == RW;
}

/// True for `WO` and `RW`.
inline bool IsWritable(EAccessMode mode)
{
    return mode == WO || mode == RW;
}

/// False for `NI` only.
inline bool IsImplemented(EAccessMode mode)
{
    return mode != NI;
}

/// False for `NI` and `NA`.
inline bool IsAvailable(EAccessMode mode)
{
    return mode != NI && mode != NA;
}

inline bool IsReadable(const IBase *node)
{
    return node && IsReadable(node->GetAccessMode());
}

inline bool IsWritable(const IBase *node)
{
    return node && IsWritable(node->GetAccessMode());
}

inline bool IsImplemented(const IBase *node)
{
    return node && IsImplemented(node->GetAccessMode());
}

inline bool IsAvailable(const IBase *node)
{
    return node && IsAvailable(node->GetAccessMode());
}

inline bool IsReadable(const IBase &node)
{
    return IsReadable(&node);
}

inline bool IsWritable(const IBase &node)
{
    return IsWritable(&node);
}

inline bool IsImplemented(const IBase &node)
{
    return IsImplemented(&node);
}

inline bool IsAvailable(const IBase &node)
{
    return IsAvailable(&node);
}

} // namespace GenApi_3_0
