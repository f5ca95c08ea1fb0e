// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/camerainterface.h>

namespace OrvCam {

/// All USB ports of this machine as one interface of the camera system.
class UvInterface final : public CameraInterface
{
public:
    explicit UvInterface(CameraSystem &system);

private:
    int32_t discover(uint32_t timeoutMs, std::vector<DeviceFacts> &found) override;
    std::shared_ptr<CameraConnector> makeConnector(const DeviceFacts &facts) override;
};

} // namespace OrvCam
