// SPDX-License-Identifier: MIT
#pragma once

#include "cameraconnection.h"
#include "cameranodemap.h"

#include <string>

namespace OrvCam {

/// An open camera with a port and a description: creates its node map.
class PortConnection final : public CameraConnection
{
public:
    /// Throws `RuntimeException` for an invalid description.
    PortConnection(std::unique_ptr<OrvCameraIo::Port> port, const std::string &description);

    GenApi::INodeMap &nodeMap() override { return m_nodeMap; }
    void poll(int64_t elapsedMs) override { m_nodeMap.pollLater(elapsedMs); }
    void setListener(OrvCameraIo::RegisterIoListener *listener) override;

private:
    CameraNodeMap m_nodeMap;
};

/// The result of a transport that has opened a camera.
struct OpenedCamera
{
    std::unique_ptr<OrvCameraIo::Port> port; ///< null on failure
    std::shared_ptr<const std::string> description;
};

/// A connector for a transport that supplies ports.
class PortConnector : public CameraConnector
{
public:
    std::unique_ptr<CameraConnection> open(int32_t accessMode, const OpenProgress &progress,
                                           int32_t &error) final;

protected:
    /// Stores the `ErrorCode` in `error`. May throw the exceptions of the transports.
    virtual OpenedCamera openPort(int32_t accessMode, const OpenProgress &progress,
                                  int32_t &error) = 0;
};

} // namespace OrvCam
