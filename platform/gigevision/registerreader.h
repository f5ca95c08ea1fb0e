// SPDX-License-Identifier: MIT
#pragma once

#include "batchread.h"

#include <atomic>
#include <mutex>
#include <optional>

namespace OrvGigEVision {

/// Reads a camera's registers, and detects the commands and the byte order that it supports.
class RegisterReader
{
public:
    explicit RegisterReader(GvcpChannel &channel) : m_channel(channel) {}

    /// Reads the camera's capabilities, and compares a register read by both commands. Returns
    /// false when the camera does not answer.
    bool readCapabilities();

    /// Thread-safe; takes effect with the next batch.
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
    int m_comparisons = 0; ///< the number of registers that were read by both commands
};

} // namespace OrvGigEVision
