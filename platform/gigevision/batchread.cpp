// SPDX-License-Identifier: MIT
#include "batchread.h"

#include "registermemory.h"

#include <cameraio/limits.h>

#include <algorithm>

namespace OrvGigEVision {

using OrvCameraIo::ReadTransfer;
using OrvCameraIo::RegisterRange;
using OrvCameraIo::Status;

namespace {

void setWords(ReadTransfer &read, const uint32_t *words)
{
    read.bytes.clear();
    for (uint32_t i = 0; i < read.range.size; ++i)
        read.bytes.push_back(static_cast<uint8_t>(words[i / 4] >> (24 - i % 4 * 8)));
    read.status = Status::Done;
}

} // namespace

/// Consecutive items of a group.
struct BatchRead::Items
{
    const std::size_t *first;
    const std::size_t *last;

    std::size_t size() const { return static_cast<std::size_t>(last - first); }
    std::size_t operator[](std::size_t i) const { return first[i]; }
    Items from(std::size_t i) const { return {first + i, last}; }
    Items until(std::size_t i) const { return {first, first + i}; }
};

struct BatchRead::Answer
{
    Status status = Status::NoAnswer;
    bool isBusy = false;
    std::size_t done = 0; ///< the number of registers that were read before the refusal
};

void BatchRead::run()
{
    std::vector<std::size_t> items;
    for (std::size_t i = 0; i < m_batch.size(); ++i) {
        if (checkRange(m_batch[i]))
            items.push_back(i);
    }
    const ReadPlan plan(m_batch, items, m_rules, m_knowledge.memory);

    const Kind registers{m_knowledge.registers, &BatchRead::transferRegisters};
    const Kind memory{m_knowledge.memoryBlock, &BatchRead::transferMemory};
    const auto readAll = [&](const Kind &kind, const auto &groups) {
        return std::all_of(groups.begin(), groups.end(), [&](const auto &group) {
            return readTogether(kind, {group.data(), group.data() + group.size()}) != Result::Ended;
        });
    };
    if (readAll(registers, plan.registers))
        readAll(memory, plan.memory);
}

/// Called before each command.
bool BatchRead::isTimeUp() const
{
    return Clock::now() >= m_end &&
           std::any_of(m_batch.begin(), m_batch.end(),
                       [](const ReadTransfer &read) { return read.status != Status::NotSent; });
}

/// Returns false for a range that cannot be read, and sets its result.
bool BatchRead::checkRange(ReadTransfer &read) const
{
    read.status = Status::NotSent;
    read.bytes.clear();
    if (read.range.size == 0)
        read.status = Status::Done;
    else if (read.range.size > OrvCameraIo::Limits::registerSize)
        read.status = Status::InvalidParameter;
    else if (read.range.address > 0xFFFFFFFF ||
             RegisterMemory::wordsOf(read.range).end > uint64_t(1) << 32)
        read.status = Status::InvalidAddress;
    else
        return true;
    return false;
}

BatchRead::Result BatchRead::readTogether(const Kind &kind, const Items &items)
{
    if (items.size() == 0)
        return Result::Complete;
    if (items.size() == 1)
        return readAlone(items[0]);
    BatchCommand &command = kind.command;
    if (items.size() > command.limit)
        return readInParts(kind, items, command.limit, command.limit);
    if (isTimeUp())
        return Result::Ended;

    const Answer answer = (this->*kind.transfer)(items);
    if (!isAnswer(answer.status)) {
        for (const std::size_t *item = items.first; item != items.last; ++item)
            m_batch[*item].status = answer.status;
        return Result::Ended;
    }
    const bool isDone = answer.status == Status::Done;
    const Result result = isDone ? Result::Complete : afterRefusal(kind, items, answer);
    command.worked = std::max(command.worked, isDone ? items.size() : answer.done);
    return result;
}

BatchRead::Result BatchRead::readInParts(const Kind &kind, const Items &items, std::size_t first,
                                         std::size_t others)
{
    Result all = Result::Complete;
    std::size_t size = first;
    for (Items rest = items; rest.size() > 0; size = others) {
        const std::size_t now = std::min(size, rest.size());
        const Result result = readTogether(kind, rest.until(now));
        if (result == Result::Ended)
            return result;
        if (result == Result::SomeRefused)
            all = result;
        rest = rest.from(now);
    }
    return all;
}

BatchRead::Result BatchRead::afterRefusal(const Kind &kind, const Items &items,
                                          const Answer &answer)
{
    BatchCommand &command = kind.command;
    if (answer.isBusy)
        return readEachAlone(items.from(answer.done));

    // Determines whether the camera refuses that register or the command.
    const std::size_t done = answer.done;
    const Items rest = items.from(done + 1);
    const bool isKnown = done > 0 && done < command.worked && command.reportsProgress;
    const Result suspect = isKnown ? refuse(items[done], answer.status) : readAlone(items[done]);
    if (suspect == Result::Ended)
        return suspect;
    if (suspect == Result::SomeRefused) {
        command.reportsProgress = command.reportsProgress || done > 0;
        return readTogether(kind, rest) == Result::Ended ? Result::Ended : suspect;
    }
    if (done > 0) {
        // The camera does not accept more registers per command.
        command.limit = items.size() > 2 ? std::max<std::size_t>(done, 2) : 1;
        return readTogether(kind, rest);
    }
    // The camera does not report the refused register, so the rest is tried in halves. A pair is
    // tried first if the camera may not support this command at all.
    const std::size_t half = (rest.size() + 1) / 2;
    const std::size_t first = command.worked > 1 ? half : std::min<std::size_t>(half, 2);
    const Result result =
        readInParts(kind, rest, std::max<std::size_t>(first, 1), std::max<std::size_t>(half, 1));
    if (result == Result::Complete)
        command.limit = std::min(command.limit, std::max<std::size_t>(1, items.size() / 2));
    return result;
}

BatchRead::Result BatchRead::readEachAlone(const Items &items)
{
    Result all = Result::Complete;
    for (const std::size_t *item = items.first; item != items.last; ++item) {
        const Result result = readAlone(*item);
        if (result == Result::Ended)
            return result;
        if (result == Result::SomeRefused)
            all = result;
    }
    return all;
}

BatchRead::Result BatchRead::readAlone(std::size_t item)
{
    if (isTimeUp())
        return Result::Ended;
    ReadTransfer &read = m_batch[item];
    if (ReadPlan::isWord(read.range) && m_rules.usesRegisters()) {
        const auto reply = m_channel.readRegisters({static_cast<uint32_t>(read.range.address)});
        read.status = reply.status;
        if (reply.isDone())
            setWords(read, reply.values.data());
    } else {
        read.status = RegisterMemory::read(m_channel, read.range, read.bytes);
    }
    if (!isAnswer(read.status))
        return Result::Ended;
    if (read.status != Status::Done)
        return refuse(item, read.status);
    m_knowledge.memory.accepted(read.range);
    return Result::Complete;
}

BatchRead::Result BatchRead::refuse(std::size_t item, Status status)
{
    m_batch[item].status = status;
    m_knowledge.memory.refused(m_batch[item].range);
    return Result::SomeRefused;
}

BatchRead::Answer BatchRead::transferRegisters(const Items &items)
{
    std::vector<uint32_t> addresses;
    for (const std::size_t *item = items.first; item != items.last; ++item) {
        const RegisterRange &range = m_batch[*item].range;
        for (uint32_t at = 0; at < range.size; at += 4)
            addresses.push_back(static_cast<uint32_t>(range.address + at));
    }
    const auto reply = m_channel.readRegisters(addresses);
    Answer answer{reply.status, reply.isBusy};
    std::size_t used = 0;
    for (const std::size_t *item = items.first; item != items.last; ++item, ++answer.done) {
        ReadTransfer &read = m_batch[*item];
        if (used + read.range.size / 4 > reply.values.size())
            break;
        setWords(read, reply.values.data() + used);
        used += read.range.size / 4;
        m_knowledge.memory.accepted(read.range);
    }
    return answer;
}

BatchRead::Answer BatchRead::transferMemory(const Items &items)
{
    const uint64_t start = RegisterMemory::wordsOf(m_batch[items[0]].range).start;
    uint64_t end = start;
    for (const std::size_t *item = items.first; item != items.last; ++item)
        end = std::max(end, RegisterMemory::wordsOf(m_batch[*item].range).end);
    std::vector<uint8_t> bytes(static_cast<std::size_t>(end - start));
    const auto reply = m_channel.readMemory(static_cast<uint32_t>(start),
                                            static_cast<uint32_t>(bytes.size()), bytes.data());
    if (!reply.isDone())
        return {reply.status, reply.isBusy};
    for (const std::size_t *item = items.first; item != items.last; ++item) {
        ReadTransfer &read = m_batch[*item];
        const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(read.range.address - start);
        read.bytes.assign(from, from + read.range.size);
        read.status = Status::Done;
    }
    return {Status::Done};
}

} // namespace OrvGigEVision
