// SPDX-License-Identifier: MIT
#pragma once

#include "cameraconnection.h"
#include "nodemaparray.h"

#include <OrvCam/Device.h>

#include <cameraio/maincontext.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace OrvCam {

/// An opened camera of any kind: its parameters and its events. While the camera is disconnected
/// the parameters return an error and the connection searches for it; they work again when it is
/// back. Do not release the device from inside one of its notifications or events.
class CameraDevice final : public Device, private OrvCameraIo::RegisterIoListener
{
public:
    /// Opens the camera; null with the reason in `error`. `owner` is kept alive as long as the
    /// device, because `info` belongs to it. `homeThread` is the one that runs the default GLib
    /// main context.
    static CameraDevice *open(std::shared_ptr<void> owner, DeviceInfo &info,
                              const std::shared_ptr<CameraConnector> &connector, int32_t accessMode,
                              int32_t &error, const OpenProgress &progress = {},
                              std::thread::id homeThread = std::this_thread::get_id());

    OrvGenParam::Array *GetParamArray(int32_t *error = nullptr) override;
    bool IsConnected() const override { return m_isConnected; }
    DeviceInfo *GetDeviceInfo() const override { return &m_info; }
    int32_t RegisterEvent(int32_t eventCode, DeviceEventCallback callback, void *context) override;
    int32_t UnregisterEvent(int32_t eventCode, DeviceEventCallback callback,
                            void *context) override;
    void Release() override;

private:
    struct Registration
    {
        int32_t eventCode;
        DeviceEventCallback callback;
        void *context;

        bool operator==(const Registration &other) const;
    };

    CameraDevice(std::shared_ptr<void> owner, DeviceInfo &info,
                 std::unique_ptr<CameraConnection> connection, std::thread::id homeThread);
    ~CameraDevice() override;

    void lost() override;
    void found() override;
    void poll();
    void emitEvent(int32_t eventCode);
    bool has(const Registration &registration) const;
    bool isRegistered(const Registration &registration) const;

    const std::shared_ptr<void> m_owner;
    DeviceInfo &m_info;
    const std::unique_ptr<CameraConnection> m_connection;
    OrvGenParam::NodeMapArray m_array;
    std::atomic<bool> m_isConnected{true};

    OrvCameraIo::Clock::time_point m_lastPoll = OrvCameraIo::Clock::now();
    std::unique_ptr<OrvCameraIo::MainContext::Timer> m_poller;

    mutable std::mutex m_mutex; ///< guards the registrations
    std::vector<Registration> m_registrations;
    std::recursive_mutex m_emitting; ///< locked while event callbacks run
};

} // namespace OrvCam
