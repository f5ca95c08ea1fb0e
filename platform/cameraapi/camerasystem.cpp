// SPDX-License-Identifier: MIT
#include "camerasystem.h"

#include "entrylist.h"

#include <OrvCam/InterfaceList.h>

#include <mutex>

namespace OrvCam {

namespace {

std::mutex systemMutex;
std::shared_ptr<CameraSystem> theSystem;
unsigned users = 0;

uint32_t typeBit(int32_t transportKind)
{
    switch (transportKind) {
    case TransportUsb3Vision:
        return InterfaceUsb3Vision;
    case TransportGigEVision:
        return InterfaceGigEVision;
    case TransportCameraLink:
        return InterfaceCameraLink;
    case TransportCoaXPress:
        return InterfaceCoaXPress;
    case TransportHdSdi:
        return InterfaceHdSdi;
    default:
        return InterfaceCustom;
    }
}

} // namespace

CameraSystem *CameraSystem::acquire(Maker make)
{
    const std::lock_guard<std::mutex> lock(systemMutex);
    if (!theSystem)
        theSystem = make();
    if (theSystem)
        ++users;
    return theSystem.get();
}

void CameraSystem::Release()
{
    std::shared_ptr<CameraSystem> last; // destroyed after the lock is released
    const std::lock_guard<std::mutex> lock(systemMutex);
    if (theSystem.get() == this && --users == 0)
        last.swap(theSystem);
}

InterfaceList *CameraSystem::GetInterfaceSet(uint32_t typeMask)
{
    std::vector<Interface *> wanted;
    for (CameraInterface *interface : interfaces()) {
        if (typeBit(interface->GetTransportKind()) & typeMask)
            wanted.push_back(interface);
    }
    return new EntryList<InterfaceList, Interface>(std::move(wanted));
}

int32_t CameraSystem::refreshDevices(uint32_t timeoutMs)
{
    int32_t firstError = Success;
    std::vector<DeviceInfo *> found;
    for (CameraInterface *interface : interfaces()) {
        const int32_t error = interface->RefreshDevices(nullptr, timeoutMs);
        if (error == Success)
            found.insert(found.end(), interface->present().begin(), interface->present().end());
        else if (firstError == Success)
            firstError = error;
    }
    m_devices = std::move(found);
    return firstError;
}

} // namespace OrvCam
