// SPDX-License-Identifier: MIT
#pragma once

#include <cameraapi/portconnection.h>

#include <string>

namespace OrvCam {

/// Opens one GigE Vision camera, at its present address on the adapter's network.
class GvConnector final : public PortConnector
{
public:
    /// `adapterName` is a `NetworkAdapter::name`, `cameraId` a `GvCamera::id`.
    GvConnector(std::string adapterName, std::string cameraId);

private:
    OpenedCamera openPort(int32_t accessMode, const OpenProgress &progress,
                          int32_t &error) override;

    const std::string m_adapterName;
    const std::string m_cameraId;
};

} // namespace OrvCam
