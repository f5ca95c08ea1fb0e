// SPDX-License-Identifier: MIT
#pragma once

#include "cameraconnection.h"
#include "cameranodemap.h"

#include <string>

namespace OrvCam {

/// An open camera whose registers and description are known: its node map.
class PortConnection final : public CameraConnection
{
public:
    /// Throws `RuntimeException` when the description cannot be used.
    PortConnection(std::unique_ptr<OrvCameraIo::Port> port, const std::string &description);

    GenApi::INodeMap &nodeMap() override { return m_nodeMap; }
    void poll(int64_t elapsedMs) override { m_nodeMap.pollLater(elapsedMs); }
    void setListener(OrvCameraIo::RegisterIoListener *listener) override;

private:
    CameraNodeMap m_nodeMap;
};

/// What a transport hands over of a camera that it has opened.
struct OpenedCamera
{
    std::unique_ptr<OrvCameraIo::Port> port; ///< null on failure
    std::shared_ptr<const std::string> description;
};

/// A connector of a transport, which knows ports only.
class PortConnector : public CameraConnector
{
public:
    std::unique_ptr<CameraConnection> open(int32_t accessMode, const OpenProgress &progress,
                                           int32_t &error) final;

protected:
    /// The `ErrorCode` goes to `error`. May throw what the platform's rooms throw.
    virtual OpenedCamera openPort(int32_t accessMode, const OpenProgress &progress,
                                  int32_t &error) = 0;
};

} // namespace OrvCam
