// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace OrvCam {

/// A deleter for objects of the library: calls `Release`, unless the pointer is null.
struct Releaser
{
    template<class Object>
    void operator()(Object *object) const
    {
        if (object)
            object->Release();
    }
};

/// Owns a reference of a system, a list or a device.
template<class Object>
using Released = std::unique_ptr<Object, Releaser>;

} // namespace OrvCam
