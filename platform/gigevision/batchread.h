// SPDX-License-Identifier: MIT
#pragma once

#include "gvcpchannel.h"
#include "readplan.h"

#include <cstdint>

namespace OrvGigEVision {

/// The camera's support of a command that reads several registers.
struct BatchCommand
{
    std::size_t limit = SIZE_MAX; ///< the largest number of registers that the camera accepts
    std::size_t worked = 0;       ///< the largest number of registers that one command has read
    /// An answer to a refused command contains the registers before the refused one.
    bool reportsProgress = false;
};

/// The properties of a camera that are relevant for reading its registers.
struct ReadKnowledge
{
    bool isWordNumber = false;
    bool canConcatenate = false;
    bool isOrderKnown = false; ///< the byte order of memory and numbers is known to be the same
    ReadableMemory memory;
    BatchCommand registers;
    BatchCommand memoryBlock;

    ReadPlan::Rules rules() const
    {
        const bool concatenates = canConcatenate && registers.limit > 1;
        return {isWordNumber, concatenates, concatenates && isOrderKnown};
    }
};

/// Reads the registers of a batch, or as many as time allows; the others keep the status `NotSent`.
///
/// When the camera refuses a command for several registers, they are read in smaller groups,
/// finally one by one. The results are stored in the knowledge: that a register is refused, or that
/// the camera does not accept this command for so many registers.
class BatchRead
{
public:
    /// No command begins after `end`, except when no register has a result yet.
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
        Ended ///< by a command without an answer, or by lack of time
    };
    using Transfer = Answer (BatchRead::*)(const Items &items);

    struct Kind
    {
        BatchCommand &command;
        Transfer transfer;
    };

    bool isTimeUp() const;
    bool checkRange(OrvCameraIo::ReadTransfer &read) const;
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
