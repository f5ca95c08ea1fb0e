// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/cameraconnection.h>

#include <string>

namespace OrvCam {

/// Opens one GigE Vision camera, wherever it is on its adapter's network by then.
class GvConnector final : public CameraConnector
{
public:
    /// `adapterName` is a `NetworkAdapter::name`, `cameraId` a `GvCamera::id`.
    GvConnector(std::string adapterName, std::string cameraId);

    OpenedCamera open(int32_t accessMode, const OpenProgress &progress, int32_t &error) override;

private:
    const std::string m_adapterName;
    const std::string m_cameraId;
};

} // namespace OrvCam
