// SPDX-License-Identifier: MIT
#pragma once

#include "devicethread.h"

#include <atomic>
#include <functional>
#include <mutex>

namespace OrvAravis {

/// The registers of a device of Aravis, transferred one by one. The device counts as disconnected
/// when Aravis reports that.
class ArvPort final : public OrvCameraIo::Port
{
public:
    /// For a disconnected device: returns the device that represents the camera now, which may be
    /// the same one; null when the camera is not connected.
    using Reopen = std::function<std::shared_ptr<ArvDevice>()>;

    ArvPort(std::shared_ptr<ArvDevice> device, Reopen reopen);
    ~ArvPort() override;
    ArvPort(const ArvPort &) = delete;
    ArvPort &operator=(const ArvPort &) = delete;

    void setHints(const OrvCameraIo::PortHints &hints) override;
    bool isWordNumber() const override { return m_isWordNumber; }
    void read(std::vector<OrvCameraIo::ReadTransfer> &batch) override;
    OrvCameraIo::Status write(uint64_t address, const std::vector<uint8_t> &bytes) override;
    Presence probe() override;
    void interrupt() override;
    bool reopen(const std::function<bool()> &isCancelled) override;

private:
    void attach(std::shared_ptr<ArvDevice> device);
    void detach();
    OrvCameraIo::Status carryOut(Transfer &transfer, std::chrono::milliseconds budget);

    const Reopen m_reopen;
    std::shared_ptr<ArvDevice> m_device;
    std::shared_ptr<std::atomic<bool>> m_isControlLost; ///< shared with the signal's closure
    unsigned long m_signal = 0;
    std::mutex m_mutex; ///< guards the next two against `interrupt`
    std::unique_ptr<DeviceThread> m_thread;
    bool m_isInterrupted = false;
    std::atomic<bool> m_isWordNumber{false};
    bool m_hasControl = false; ///< of a GigE Vision camera, at the time of attaching
    bool m_isSilent = false;   ///< the last transfer had no answer
};

} // namespace OrvAravis
