// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <atomic>

namespace OrvCam {
class Device;
}

namespace OrvGui {

/// Keeps the last event of a device whose camera is unplugged or back, to be polled.
///
/// The device reports it on any thread, `take` returns it on that of the caller. The device must
/// live until another one, or none, is watched.
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

    /// The last event since the last call.
    Event take();

private:
    static void onEvent(qint32 code, void *context);

    OrvCam::Device *m_device = nullptr;
    std::atomic<qint32> m_event{Nothing};
};

} // namespace OrvGui
