// SPDX-License-Identifier: MIT
#pragma once

#include "gvcontrol.h"
#include "networkadapter.h"

#include <cameraapi/camerainterface.h>
#include <cameraapi/gevparameters.h>

#include <map>
#include <string>

namespace OrvAravis {

/// A network adapter as an interface of the camera system.
class GvInterface final : public OrvCam::CameraInterface, private OrvCam::GevNetwork
{
public:
    GvInterface(OrvCam::CameraSystem &system, NetworkAdapter adapter);

    /// Takes over what may have changed: addresses come and go.
    void setAdapter(NetworkAdapter adapter);

    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;

private:
    int32_t discover(uint32_t timeoutMs, std::vector<OrvCam::DeviceFacts> &found) override;
    std::shared_ptr<OrvCam::CameraConnector>
    makeConnector(const OrvCam::DeviceFacts &facts) override;
    void refreshed() override;

    OrvCam::GevAddresses adapter() const override;
    std::vector<OrvCam::GevAddresses> cameras() const override;
    int32_t forceIp(const OrvCam::GevAddresses &wanted) override;

    NetworkAdapter m_adapter;
    std::map<std::string, OrvCam::GevAddresses> m_addresses; ///< by camera id
    OrvCam::GevParameters m_parameters;
};

} // namespace OrvAravis
