// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/cameraconnection.h>

#include <string>

namespace OrvAravis {

/// Opens one GigE Vision camera, wherever it is on its adapter's network by then.
class GvConnector final : public OrvCam::CameraConnector
{
public:
    /// `cameraId` is a `GvCamera::id`.
    GvConnector(std::string adapterName, std::string cameraId);

    std::unique_ptr<OrvCam::CameraConnection> open(int32_t accessMode, int32_t &error) override;

private:
    const std::string m_adapterName;
    const std::string m_cameraId;
};

} // namespace OrvAravis
