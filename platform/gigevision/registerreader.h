// SPDX-License-Identifier: MIT
#pragma once

#include "batchread.h"

#include <atomic>
#include <mutex>
#include <optional>

namespace OrvGigEVision {

/// Reads a camera's registers, and finds out how it wants that done.
class RegisterReader
{
public:
    explicit RegisterReader(GvcpChannel &channel) : m_channel(channel) {}

    /// Asks the camera what it can, and looks at one register in both ways that there are. False
    /// when it does not answer.
    bool lookAtCamera();

    /// May be called on any thread; holds for the next batch.
    void setHints(const OrvCameraIo::PortHints &hints);

    /// See `OrvCameraIo::Port::isWordNumber`.
    bool isWordNumber() const { return m_isWordNumber; }

    bool canWriteMemory() const { return m_capability & Gvcp::canWriteMemory; }
    bool canConcatenate() const { return m_knowledge.canConcatenate; }

    /// See `OrvCameraIo::Port::read`.
    void read(std::vector<OrvCameraIo::ReadTransfer> &batch);

private:
    enum class Order { Unknown, Same, Reversed };

    bool compareViews(const std::vector<OrvCameraIo::ReadTransfer> &batch, bool wasRegister);
    Order orderOf(uint32_t address, const std::vector<uint8_t> &bytes, bool wasRegister);
    void readInTime(std::vector<OrvCameraIo::ReadTransfer> &batch);
    void setWordNumber();
    void takeHints();

    GvcpChannel &m_channel;
    ReadKnowledge m_knowledge;
    uint32_t m_capability = 0;
    bool m_hasHints = false;
    std::atomic<bool> m_isWordNumber{false};
    std::mutex m_mutex;
    std::optional<OrvCameraIo::PortHints> m_newHints; ///< guarded by the mutex
    int m_looks = 0; ///< how often one of the camera's registers was read in both ways
};

} // namespace OrvGigEVision
