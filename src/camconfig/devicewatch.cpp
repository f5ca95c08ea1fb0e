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
    m_news = Nothing;
    if (m_device) {
        m_device->RegisterEvent(OrvCam::EventDisconnected, onEvent, this);
        m_device->RegisterEvent(OrvCam::EventReconnected, onEvent, this);
    }
}

DeviceWatch::News DeviceWatch::take()
{
    return static_cast<News>(m_news.exchange(Nothing));
}

void DeviceWatch::onEvent(qint32 code, void *context)
{
    static_cast<DeviceWatch *>(context)->m_news =
        code == OrvCam::EventReconnected ? Reconnected : Disconnected;
}

} // namespace OrvGui
