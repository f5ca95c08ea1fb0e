// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/camerainterface.h>

namespace OrvAravis {

/// All USB ports of this machine as one interface of the camera system.
class UvInterface final : public OrvCam::CameraInterface
{
public:
    explicit UvInterface(OrvCam::CameraSystem &system);

private:
    int32_t discover(uint32_t timeoutMs, std::vector<OrvCam::DeviceFacts> &found) override;
    std::shared_ptr<OrvCam::CameraConnector>
    makeConnector(const OrvCam::DeviceFacts &facts) override;
};

} // namespace OrvAravis
