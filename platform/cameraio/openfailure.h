// SPDX-License-Identifier: MIT
#pragma once

namespace OrvCameraIo {

/// Why a camera cannot be opened.
enum class OpenFailure {
    None,
    Gone, ///< it does not answer or is not plugged in, or its adapter does not exist any more
    WrongSubnet,    ///< it has no address that can be reached through the adapter
    Busy,           ///< another program has control; for reading only: exclusive control
    BadDescription, ///< it has none, or none that can be used
    Cancelled,
    Failed ///< it refuses something else
};

} // namespace OrvCameraIo
