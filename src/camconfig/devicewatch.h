// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <atomic>

namespace OrvCam {
class Device;
}

namespace OrvGui {

/// Stores the last connection event of a device (its camera is unplugged or back) for polling.
///
/// The device reports the event on any thread; `take` returns it on the caller's. The device must
/// exist until another one, or none, is watched.
class DeviceWatch
{
public:
    enum Event : qint32 { Nothing = 0, Disconnected = 1, Reconnected = 2 };

    DeviceWatch() = default;
    ~DeviceWatch();
    Q_DISABLE_COPY(DeviceWatch)

    /// Watches this device only; none if it is null. Discards the last event.
    void watch(OrvCam::Device *device);

    OrvCam::Device *device() const { return m_device; }

    /// The last event since the previous call.
    Event take();

private:
    static void onEvent(qint32 code, void *context);

    OrvCam::Device *m_device = nullptr;
    std::atomic<qint32> m_event{Nothing};
};

} // namespace OrvGui
