// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

namespace GenApi_3_0 {

/// A command of the camera.
struct GENAPI_DECL ICommand : virtual public IValue
{
    virtual void Execute(bool Verify = true) = 0;
    virtual void operator()() = 0;

    /// True when the camera has finished the command. Reads from the camera where possible.
    virtual bool IsDone(bool Verify = true) = 0;
};

} // namespace GenApi_3_0
