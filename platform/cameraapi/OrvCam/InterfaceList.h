// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <cstdint>

namespace OrvCam {

class Interface;

/// A list of interfaces. Belongs to the caller, which releases it; the entries belong to the
/// system.
class ORVCAMERAAPI_EXPORT InterfaceList
{
public:
    virtual uint32_t GetCount() const = 0;

    /// Starts an iteration; null when the list is empty.
    virtual Interface *GetFirst() = 0;

    /// The next entry of the iteration; null after the last.
    virtual Interface *GetNext() = 0;

    /// Frees the list. The entries stay valid.
    virtual void Release() = 0;

protected:
    virtual ~InterfaceList() = default;
};

} // namespace OrvCam
