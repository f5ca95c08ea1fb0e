// SPDX-License-Identifier: MIT
#include "aravissystem.h"

namespace OrvAravis {

AravisSystem::AravisSystem() : m_usb(*this) {}

GvInterface &AravisSystem::interfaceFor(const NetworkAdapter &adapter)
{
    auto &interface = m_networks[adapter.name];
    if (interface)
        interface->setAdapter(adapter);
    else
        interface = std::make_unique<GvInterface>(*this, adapter);
    return *interface;
}

std::vector<OrvCam::CameraInterface *> AravisSystem::interfaces()
{
    std::vector<OrvCam::CameraInterface *> all;
    for (const NetworkAdapter &adapter : networkAdapters())
        all.push_back(&interfaceFor(adapter));
    all.push_back(&m_usb);
    return all;
}

} // namespace OrvAravis
