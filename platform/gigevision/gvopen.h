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

    /// Why it failed, in English, plain text; empty otherwise.
    std::string message;

    /// Null when it failed.
    std::unique_ptr<GvPort> port;

    /// The XML text, of which nothing has been checked but its length. Cameras of a kind that are
    /// open at the same time share it. Null when it failed.
    std::shared_ptr<const std::string> description;
};

/// The share of the description that has come, in bytes. Called on the thread that opens, and not
/// at all when a kept description is used.
using Progress = std::function<void(std::size_t done, std::size_t total)>;

/// Waits until the camera is open or cannot be; it is looked for on the adapter's network, in any
/// subnet. `adapterName` is a `NetworkAdapter::name`, `cameraId` a `GvCamera::id`. Both
/// functions may be null; `isCancelled` is asked before each command.
///
/// The port's control has to be kept alive from then on, by `probe`.
OpenResult openCamera(const std::string &adapterName, const std::string &cameraId, OpenMode mode,
                      const Progress &progress = nullptr,
                      const std::function<bool()> &isCancelled = nullptr);

} // namespace OrvGigEVision
