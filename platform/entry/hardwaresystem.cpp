// SPDX-License-Identifier: MIT
#include "hardwaresystem.h"

namespace OrvCam {

GvInterface &HardwareSystem::interfaceFor(const OrvGigEVision::NetworkAdapter &adapter)
{
    auto &interface = m_networks[adapter.name];
    if (interface)
        interface->setAdapter(adapter);
    else
        interface = std::make_unique<GvInterface>(*this, adapter, m_search);
    return *interface;
}

std::vector<CameraInterface *> HardwareSystem::interfaces()
{
    std::vector<CameraInterface *> all;
    for (const auto &adapter : OrvGigEVision::networkAdapters())
        all.push_back(&interfaceFor(adapter));
#ifdef ORV_WITH_ARAVIS
    all.push_back(&m_usb);
#endif
    return all;
}

} // namespace OrvCam
