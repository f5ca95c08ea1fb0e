// SPDX-License-Identifier: MIT
#pragma once

#include "gvinterface.h"
#ifdef ORV_WITH_ARAVIS
#include "uvinterface.h"
#endif

#include <cameraapi/camerasystem.h>

namespace OrvCam {

/// The cameras of this machine: one interface for each network adapter and, where
/// Aravis is used, one for USB.
class HardwareSystem final : public CameraSystem
{
protected:
    std::vector<CameraInterface *> interfaces() override;

private:
    GvInterface &interfaceFor(const OrvGigEVision::NetworkAdapter &adapter);

    OrvGigEVision::NetworkSearch m_search;
    std::map<std::string, std::unique_ptr<GvInterface>> m_networks; ///< by the adapter's name
#ifdef ORV_WITH_ARAVIS
    UvInterface m_usb{*this};
#endif
};

} // namespace OrvCam
