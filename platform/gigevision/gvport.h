// SPDX-License-Identifier: MIT
#pragma once

#include "descriptionfetch.h"
#include "registerreader.h"

#include <cameraio/port.h>

#include <string>

namespace OrvGigEVision {

enum class OpenMode {
    Control, ///< read and write; no other client can write while the port exists
    Monitor  ///< read only; another client may have control
};

/// The registers of a GigE Vision camera. Created by `openCamera`.
class GvPort final : public OrvCameraIo::Port
{
public:
    /// For a camera that has answered through this adapter and is reachable; sends nothing yet.
    /// `cameraId` is a `GvCamera::id`.
    GvPort(const NetworkAdapter &adapter, std::string cameraId, uint32_t camera, OpenMode mode);

    /// Releases control without waiting for an answer.
    ~GvPort() override;
    GvPort(const GvPort &) = delete;
    GvPort &operator=(const GvPort &) = delete;

    OpenMode mode() const { return m_mode; }
    GvcpChannel &channel() { return m_channel; }

    /// Takes control, or checks whether reading is allowed, and reads the camera's capabilities.
    OrvCameraIo::Status connect();

    /// The data for `reopen`.
    void setDescription(const DescriptionMark &mark) { m_description = mark; }

    std::size_t batchSize() const override { return Gvcp::maxRegisters; }
    void setHints(const OrvCameraIo::PortHints &hints) override { m_reader.setHints(hints); }
    bool isWordNumber() const override { return m_reader.isWordNumber(); }
    void read(std::vector<OrvCameraIo::ReadTransfer> &batch) override { m_reader.read(batch); }
    OrvCameraIo::Status write(uint64_t address, const std::vector<uint8_t> &bytes) override;
    Presence probe() override;
    void interrupt() override { m_channel.interrupt(); }
    bool reopen(const std::function<bool()> &isCancelled) override;

private:
    OrvCameraIo::Status writeWords(uint32_t address, const std::vector<uint8_t> &bytes);
    OrvCameraIo::Status takeControl();
    void giveControlBack();

    const std::string m_adapterName;
    const std::string m_cameraId;
    const OpenMode m_mode;
    GvcpChannel m_channel;
    RegisterReader m_reader{m_channel};
    DescriptionMark m_description;
    bool m_hasControl = false;
};

/// The present state of the adapter with that name.
std::optional<NetworkAdapter> adapterCalled(const std::string &name);

/// The time-out of a search for a camera that should be there.
constexpr std::chrono::milliseconds searchTime{1000};

} // namespace OrvGigEVision
