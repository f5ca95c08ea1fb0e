// SPDX-License-Identifier: MIT
#include <GenApi/NodeCallback.h>

namespace GenApi_3_0 {

void Deregister(CallbackHandleType handle)
{
    auto *callback = reinterpret_cast<CNodeCallback *>(handle);
    if (callback)
        callback->GetNode()->DeregisterCallback(handle);
}

} // namespace GenApi_3_0
