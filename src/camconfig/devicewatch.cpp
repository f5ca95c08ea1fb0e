// SPDX-License-Identifier: MIT
#include "camconfig/devicewatch.h"

#include <OrvCam/Device.h>

namespace OrvGui {

DeviceWatch::~DeviceWatch()
{
    watch(nullptr);
}

void DeviceWatch::watch(OrvCam::Device *device)
{
    if (m_device) {
        m_device->UnregisterEvent(OrvCam::EventDisconnected, onEvent, this);
        m_device->UnregisterEvent(OrvCam::EventReconnected, onEvent, this);
    }
    m_device = device;
    m_event = Nothing;
    if (m_device) {
        m_device->RegisterEvent(OrvCam::EventDisconnected, onEvent, this);
        m_device->RegisterEvent(OrvCam::EventReconnected, onEvent, this);
    }
}

DeviceWatch::Event DeviceWatch::take()
{
    return static_cast<Event>(m_event.exchange(Nothing));
}

void DeviceWatch::onEvent(qint32 code, void *context)
{
    static_cast<DeviceWatch *>(context)->m_event =
        code == OrvCam::EventReconnected ? Reconnected : Disconnected;
}

} // namespace OrvGui
