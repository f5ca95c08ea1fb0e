// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <atomic>

namespace OrvCam {
class Device;
}

namespace OrvGui {

/// Notes that the camera of a device has gone or is back, for somebody who asks now and then.
///
/// The device tells on any thread; here nothing is done but to remember the last news. The device
/// must live until another one, or none, is watched.
class DeviceWatch
{
public:
    enum News : qint32 { Nothing = 0, Disconnected = 1, Reconnected = 2 };

    DeviceWatch() = default;
    ~DeviceWatch();
    Q_DISABLE_COPY(DeviceWatch)

    /// Watches this device only; none if it is null. News from before are forgotten.
    void watch(OrvCam::Device *device);

    OrvCam::Device *device() const { return m_device; }

    /// The last news since the last call.
    News take();

private:
    static void onEvent(qint32 code, void *context);

    OrvCam::Device *m_device = nullptr;
    std::atomic<qint32> m_news{Nothing};
};

} // namespace OrvGui
