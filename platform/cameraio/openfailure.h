// SPDX-License-Identifier: MIT
#pragma once

namespace OrvCameraIo {

/// The reason why a camera cannot be opened.
enum class OpenFailure {
    None,
    Gone, ///< the camera does not answer or is not plugged in, or its adapter no longer exists
    WrongSubnet,    ///< the camera has no address that can be reached through the adapter
    Busy,           ///< another program has control; for reading only: exclusive control
    BadDescription, ///< the description is missing or unusable
    Cancelled,
    Failed ///< refused for another reason
};

} // namespace OrvCameraIo
