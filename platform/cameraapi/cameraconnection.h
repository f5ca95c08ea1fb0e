// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Codes.h>

#include <cameraio/registerio.h>

#include <GenApi/INodeMap.h>

#include <functional>
#include <memory>
#include <string>

namespace OrvCam {

/// An open camera; destroying it closes the camera and does not wait for it.
class CameraConnection
{
public:
    virtual ~CameraConnection() = default;

    /// Stays as long as the connection, also while the camera is lost.
    virtual GenApi::INodeMap &nodeMap() = 0;

    /// Polls the node map, so many ms after the last call. Called on the thread that runs the
    /// default main context.
    virtual void poll(int64_t elapsedMs) { nodeMap().Poll(elapsedMs); }

    /// The listener to the camera being lost and found; null for none. When this returns, no call
    /// of the former listener is under way on another thread.
    virtual void setListener(OrvCameraIo::RegisterIoListener *listener) = 0;
};

/// How the opening of a camera goes on. All functions may be empty, and are called on the thread
/// that opens.
struct OpenProgress
{
    std::function<void(int percent)> report; ///< the share of the description that has come
    std::function<bool()> isCancelled;
    std::function<void(const std::string &reason)> explain; ///< why it failed, in English
};

/// Knows how to reach one camera. It depends on no record or interface, so that it can be used on
/// a thread of its own.
class CameraConnector
{
public:
    virtual ~CameraConnector() = default;

    /// Looks for the camera and opens it. Null on failure, with the `ErrorCode` in `error`; throws
    /// nothing.
    virtual std::unique_ptr<CameraConnection> open(int32_t accessMode, const OpenProgress &progress,
                                                   int32_t &error) = 0;
};

} // namespace OrvCam
