// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Codes.h>

#include <cameraio/registerio.h>

#include <GenApi/INodeMap.h>

#include <functional>
#include <memory>
#include <string>

namespace OrvCam {

/// An open camera. Destroying the object closes the camera without blocking.
class CameraConnection
{
public:
    virtual ~CameraConnection() = default;

    /// Exists as long as the connection, even while the camera is disconnected.
    virtual GenApi::INodeMap &nodeMap() = 0;

    /// Polls the node map; `elapsedMs` is the time since the previous call. Called on the thread
    /// that runs the default main context.
    virtual void poll(int64_t elapsedMs) { nodeMap().Poll(elapsedMs); }

    /// Sets the listener to disconnections and reconnections of the camera; null for none. When
    /// this returns, no call of the previous listener is running on another thread.
    virtual void setListener(OrvCameraIo::RegisterIoListener *listener) = 0;
};

/// Callbacks during the opening of a camera. All may be empty, and are called on the opening
/// thread.
struct OpenProgress
{
    std::function<void(int percent)> report; ///< the downloaded share of the description
    std::function<bool()> isCancelled;
    std::function<void(const std::string &reason)> explain; ///< the reason of a failure, in English
};

/// Opens one particular camera. It depends on no record or interface, so that it can be used on a
/// separate thread.
class CameraConnector
{
public:
    virtual ~CameraConnector() = default;

    /// Searches for the camera and opens it. Returns null on failure, with the `ErrorCode` in
    /// `error`; throws nothing.
    virtual std::unique_ptr<CameraConnection> open(int32_t accessMode, const OpenProgress &progress,
                                                   int32_t &error) = 0;
};

} // namespace OrvCam
