// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <atomic>
#include <functional>
#include <memory>

typedef struct _ArvDevice ArvDevice;
typedef struct _GError GError;

namespace OrvAravis {

/// The registers of a device of Aravis, which does the transfers one by one and with time-outs of
/// its own. The device counts as lost when Aravis says so.
class ArvPort final : public OrvCameraIo::Port
{
public:
    /// For a lost device: the one that stands for the camera now, which may be the same; null when
    /// the camera is not there.
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
    bool reopen(const std::function<bool()> &isCancelled) override;

private:
    using Flag = std::shared_ptr<std::atomic<bool>>;

    void attach(std::shared_ptr<ArvDevice> device);
    void detach();
    void read(OrvCameraIo::ReadTransfer &transfer);
    OrvCameraIo::Status note(GError *error);

    const Reopen m_reopen;
    std::shared_ptr<ArvDevice> m_device;
    Flag m_isControlLost; ///< shared with the signal's closure
    unsigned long m_signal = 0;
    std::atomic<bool> m_isWordNumber{false};
    bool m_isSilent = false; ///< the last transfer had no answer
};

} // namespace OrvAravis
