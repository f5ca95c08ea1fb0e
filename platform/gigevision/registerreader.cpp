// SPDX-License-Identifier: MIT
#include "registerreader.h"

#include <cameraio/limits.h>

#include <algorithm>

namespace OrvGigEVision {

using OrvCameraIo::ReadTransfer;
using OrvCameraIo::Status;

namespace {

/// The number of comparisons; a register that changes all the time is not conclusive.
constexpr int maxComparisons = 4;

/// The time limit of a batch. A camera without concatenation may need a command for each register,
/// and other callers wait for its end.
constexpr std::chrono::milliseconds longestBatch{100};

std::vector<uint8_t> reversed(std::vector<uint8_t> bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

std::vector<uint8_t> bytesOf(uint32_t word)
{
    return {static_cast<uint8_t>(word >> 24), static_cast<uint8_t>(word >> 16),
            static_cast<uint8_t>(word >> 8), static_cast<uint8_t>(word)};
}

} // namespace

bool RegisterReader::readCapabilities()
{
    const auto reply = m_channel.readRegisters({Gvcp::Capability});
    m_capability = reply.isDone() ? reply.values.front() : 0;
    m_knowledge.canConcatenate = m_capability & Gvcp::canConcatenate;
    if (!reply.isDone() || isWordNumber())
        return isAnswer(reply.status);

    const auto bytes = bytesOf(m_capability);
    const bool isSymmetric = std::equal(bytes.begin(), bytes.end(), bytes.rbegin());
    if (!isSymmetric && orderOf(Gvcp::Capability, bytes, true) == Order::Reversed)
        setWordNumber();
    return true;
}

void RegisterReader::setHints(const OrvCameraIo::PortHints &hints)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_newHints = hints;
    if (hints.isWordNumber)
        m_isWordNumber = true;
}

void RegisterReader::takeHints()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_newHints)
        return;
    m_knowledge.memory.setDeclared(std::move(m_newHints->declared));
    m_knowledge.isWordNumber = m_isWordNumber;
    m_hasHints = true;
    m_newHints.reset();
}

void RegisterReader::setWordNumber()
{
    m_isWordNumber = true;
    m_knowledge.isWordNumber = true;
}

void RegisterReader::read(std::vector<ReadTransfer> &batch)
{
    takeHints();
    const bool usesRegisters = m_knowledge.rules().usesRegisters();
    readInTime(batch);
    const bool wantsToKnow = m_hasHints && !isWordNumber() && !m_knowledge.isOrderKnown;
    if (wantsToKnow && m_comparisons < maxComparisons && compareViews(batch, usesRegisters)) {
        setWordNumber();
        readInTime(batch);
    }
}

void RegisterReader::readInTime(std::vector<ReadTransfer> &batch)
{
    BatchRead(m_channel, m_knowledge, batch, Clock::now() + longestBatch).run();
}

/// Compares registers of the maker, because the bootstrap registers may be the same in both ways
/// while these are not. Returns true when a register of the batch has different byte orders.
bool RegisterReader::compareViews(const std::vector<ReadTransfer> &batch, bool wasRegister)
{
    const auto isConclusive = [](const ReadTransfer &read) {
        return read.status == Status::Done && ReadPlan::isWord(read.range) &&
               read.range.address >= Gvcp::FirstOfMaker && read.bytes != reversed(read.bytes);
    };
    const auto read = std::find_if(batch.begin(), batch.end(), isConclusive);
    if (read == batch.end())
        return false;
    ++m_comparisons;
    const auto address = static_cast<uint32_t>(read->range.address);
    const Order order = orderOf(address, read->bytes, wasRegister);
    m_knowledge.isOrderKnown = order == Order::Same;
    return order == Order::Reversed;
}

/// Reads the word by the other command and compares.
RegisterReader::Order RegisterReader::orderOf(uint32_t address, const std::vector<uint8_t> &bytes,
                                              bool wasRegister)
{
    std::vector<uint8_t> other(4);
    const auto reply = wasRegister ? m_channel.readMemory(address, 4, other.data())
                                   : m_channel.readRegisters({address});
    if (!reply.isDone())
        return Order::Unknown;
    if (!wasRegister)
        other = bytesOf(reply.values.front());
    if (other == bytes)
        return Order::Same;
    return other == reversed(bytes) ? Order::Reversed : Order::Unknown;
}

} // namespace OrvGigEVision
