// SPDX-License-Identifier: MIT
#pragma once

#include "gvport.h"

#include <cameraio/openfailure.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace OrvGigEVision {

/// Opens one GigE Vision camera and fetches its description.
struct OpenResult
{
    using Failure = OrvCameraIo::OpenFailure;

    Failure failure = Failure::Failed;

    /// The reason of a failure, in English, plain text; otherwise empty.
    std::string message;

    /// Null on failure.
    std::unique_ptr<GvPort> port;

    /// The XML text, of which only the length has been checked. Cameras with the same description
    /// that are open at the same time share it. Null on failure.
    std::shared_ptr<const std::string> description;
};

/// Reports the number of downloaded bytes of the description. Called on the opening thread, and not
/// when a stored description is used.
using Progress = std::function<void(std::size_t done, std::size_t total)>;

/// Blocks until the camera is open or has failed; searches for it on the adapter's network, in any
/// subnet. `adapterName` is a `NetworkAdapter::name`, `cameraId` a `GvCamera::id`. Both functions
/// may be null; `isCancelled` is called before each command.
///
/// Afterwards the caller must keep control alive by `probe`.
OpenResult openCamera(const std::string &adapterName, const std::string &cameraId, OpenMode mode,
                      const Progress &progress = nullptr,
                      const std::function<bool()> &isCancelled = nullptr);

} // namespace OrvGigEVision
