// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpchannel.h"
#include "readplan.h"

#include <cstdint>

namespace OrvGigEVision {

/// What has been found out about commands that read several registers.
struct BatchCommand
{
    std::size_t limit = SIZE_MAX; ///< the number of registers up to which the camera takes it
    std::size_t worked = 0;       ///< as many registers were once read by one
    bool tellsProgress = false;   ///< a refusal says which register is refused
};

/// What is known of a camera that matters for reading its registers.
struct ReadKnowledge
{
    bool isWordNumber = false;
    bool canConcatenate = false;
    bool isOrderKnown = false; ///< memory and numbers are known to have the same order of bytes
    ReadableMemory memory;
    BatchCommand registers;
    BatchCommand memoryBlock;

    ReadPlan::Rules rules() const
    {
        const bool concatenates = canConcatenate && registers.limit > 1;
        return {isWordNumber, concatenates, concatenates && isOrderKnown};
    }
};

/// Reads the registers of one batch, or as many of them as there is time for: the others are left
/// with the status `NotSent`.
///
/// When the camera refuses a command for several registers, they are read in smaller groups, in the
/// end one by one, and what is learnt from that is kept in the knowledge: that a register is
/// refused, or that the camera does not take this command for so many registers.
class BatchRead
{
public:
    /// No command begins after `end`, unless no register has a result yet.
    BatchRead(GvcpChannel &channel, ReadKnowledge &knowledge,
              std::vector<OrvCameraIo::ReadTransfer> &batch, Clock::time_point end)
        : m_channel(channel)
        , m_knowledge(knowledge)
        , m_rules(knowledge.rules())
        , m_batch(batch)
        , m_end(end)
    {
    }

    void run();

private:
    struct Items;
    struct Answer;
    enum class Result {
        Complete,
        SomeRefused,
        Ended ///< by a command without an answer, or for want of time
    };
    using Transfer = Answer (BatchRead::*)(const Items &items);

    struct Kind
    {
        BatchCommand &command;
        Transfer transfer;
    };

    bool isTimeUp() const;
    bool isWithinReach(OrvCameraIo::ReadTransfer &read) const;
    Result readTogether(const Kind &kind, const Items &items);
    Result readInParts(const Kind &kind, const Items &items, std::size_t first, std::size_t others);
    Result afterRefusal(const Kind &kind, const Items &items, const Answer &answer);
    Result readEachAlone(const Items &items);
    Result readAlone(std::size_t item);
    Result refuse(std::size_t item, OrvCameraIo::Status status);
    Answer transferRegisters(const Items &items);
    Answer transferMemory(const Items &items);

    GvcpChannel &m_channel;
    ReadKnowledge &m_knowledge;
    const ReadPlan::Rules m_rules;
    std::vector<OrvCameraIo::ReadTransfer> &m_batch;
    const Clock::time_point m_end;
};

} // namespace OrvGigEVision
