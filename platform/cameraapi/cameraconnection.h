// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Codes.h>

#include <GenApi/INodeMap.h>

#include <memory>

namespace OrvCam {

/// An open camera; destroying it closes the camera.
class CameraConnection
{
public:
    virtual ~CameraConnection() = default;

    /// Stays as long as the connection, even when the camera goes.
    virtual GenApi::INodeMap &nodeMap() = 0;

    /// False once the camera is lost: it has not answered for its heartbeat time, or no longer
    /// obeys. Asks the camera; may take a quarter of a second. Called on one thread only, which is
    /// not the one that uses the node map.
    virtual bool isAlive() = 0;

    /// For a lost camera that is back: gives up the control that it may still grant this
    /// connection.
    virtual void abandon() {}
};

/// Knows how to reach one camera, as often as it takes. It depends on no record or interface, so
/// that a device may use it on a thread of its own.
class CameraConnector
{
public:
    virtual ~CameraConnector() = default;

    /// Looks for the camera and opens it. Null on failure, with the `ErrorCode` in `error`; throws
    /// nothing.
    virtual std::unique_ptr<CameraConnection> open(int32_t accessMode, int32_t &error) = 0;
};

} // namespace OrvCam
