// SPDX-License-Identifier: MIT
#pragma once

#include <cameraio/port.h>

#include <memory>

namespace OrvGigEVision {

enum class OpenMode {
    Control, ///< reads and writes; nobody else can write as long as the port exists
    Monitor  ///< reads; somebody else may have control
};

/// The registers of an open GigE Vision camera. Made by `openCamera`.
class GvPort final : public OrvCameraIo::Port
{
public:
    /// Gives control back, without waiting for an answer.
    ~GvPort() override;

    OpenMode mode() const;

    std::size_t batchSize() const override;
    void setHints(const OrvCameraIo::PortHints &hints) override;
    bool isWordNumber() const override;
    void read(std::vector<OrvCameraIo::ReadTransfer> &batch) override;
    OrvCameraIo::Status write(uint64_t address, const std::vector<uint8_t> &bytes) override;
    Presence probe() override;
    bool reopen(const std::function<bool()> &isCancelled) override;

private:
    struct Private;
    explicit GvPort(std::unique_ptr<Private> d);

    const std::unique_ptr<Private> d;
};

} // namespace OrvGigEVision
