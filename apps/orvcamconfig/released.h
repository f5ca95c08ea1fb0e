// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

template<typename Object>
struct Releaser
{
    void operator()(Object *object) const { object->Release(); }
};

/// Holds what the camera access library hands out, and gives it back.
template<typename Object>
using Released = std::unique_ptr<Object, Releaser<Object>>;
