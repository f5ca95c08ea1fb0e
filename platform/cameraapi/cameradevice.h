// SPDX-License-Identifier: MIT
#pragma once

#include "cameraconnection.h"
#include "nodemaparray.h"
#include "nodemappoller.h"

#include <OrvCam/Device.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace OrvCam {

/// An opened camera of any kind: polls its node map, notices on a thread of its own when the camera
/// goes and opens it again when it is back. Make it on the thread that runs the default GLib main
/// context. Must not be released from inside a notification, poll or event of its own.
class ORVCAMERAAPI_EXPORT CameraDevice final : public Device
{
public:
    /// Opens the camera; null with the reason in `error`. `owner` is kept alive as long as the
    /// device, for the sake of `info`; the camera is looked after every `watchPeriodMs`.
    static CameraDevice *open(std::shared_ptr<void> owner, DeviceInfo &info,
                              std::shared_ptr<CameraConnector> connector, int32_t accessMode,
                              int32_t &error, unsigned watchPeriodMs = 500);

    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;
    bool IsConnected() const override;
    DeviceInfo *GetDeviceInfo() const override { return &m_info; }
    int32_t RegisterEvent(int32_t eventCode, DeviceEventCallback callback, void *context) override;
    int32_t UnregisterEvent(int32_t eventCode, DeviceEventCallback callback,
                            void *context) override;
    void Release() override;

private:
    /// The time between a connect and a disconnect. Node maps and parameters of earlier sessions
    /// are kept for those who still hold pointers to them.
    struct Session
    {
        std::unique_ptr<CameraConnection> connection;
        std::unique_ptr<OrvGenParam::NodeMapArray> array;
        std::unique_ptr<NodeMapPoller> poller;
    };
    struct Registration
    {
        int32_t eventCode;
        DeviceEventCallback callback;
        void *context;

        bool operator==(const Registration &other) const;
    };

    CameraDevice(std::shared_ptr<void> owner, DeviceInfo &info,
                 std::shared_ptr<CameraConnector> connector, int32_t accessMode,
                 unsigned watchPeriodMs);
    ~CameraDevice() override;

    std::unique_ptr<Session> connect(int32_t &error);
    void enter(std::unique_ptr<Session> session);
    void watch();
    void lose(Session &session);
    void emitEvent(int32_t eventCode);
    bool has(const Registration &registration) const;
    bool isRegistered(const Registration &registration) const;

    const std::shared_ptr<void> m_owner;
    DeviceInfo &m_info;
    const std::shared_ptr<CameraConnector> m_connector;
    const int32_t m_accessMode;
    const unsigned m_watchPeriodMs;
    const std::thread::id m_homeThread = std::this_thread::get_id();

    mutable std::mutex m_mutex; ///< guards what follows, up to the blank line
    std::vector<std::unique_ptr<Session>> m_sessions;
    Session *m_current = nullptr; ///< null while the camera is disconnected
    std::vector<Registration> m_registrations;
    bool m_stop = false;

    std::condition_variable m_wake;
    std::recursive_mutex m_emitting; ///< held while event callbacks run
    std::thread m_watcher;
};

} // namespace OrvCam
