// SPDX-License-Identifier: MIT
#pragma once

#include "gvinterface.h"
#include "uvinterface.h"

#include <cameraapi/camerasystem.h>

namespace OrvAravis {

/// The cameras of this machine: one interface for each network adapter, one for USB.
class AravisSystem final : public OrvCam::CameraSystem
{
public:
    AravisSystem();

protected:
    std::vector<OrvCam::CameraInterface *> interfaces() override;

private:
    GvInterface &interfaceFor(const NetworkAdapter &adapter);

    std::map<std::string, std::unique_ptr<GvInterface>> m_networks; ///< by the adapter's name
    UvInterface m_usb;
};

} // namespace OrvAravis
