// SPDX-License-Identifier: MIT
#pragma once

#include "limits.h"

#include <genapi/nodes/registers.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace OrvCameraIo {

using OrvGenApi::RegisterRange;
using Clock = std::chrono::steady_clock;

/// What became of a transfer.
enum class Status {
    Done,
    NotSent,          ///< nothing was tried, see `Port::read`
    NoAnswer,         ///< not within its budget; forgotten as soon as the camera answers again
    AccessDenied,     ///< refused: no right to do this, or write-protected, or busy
    InvalidAddress,   ///< refused: no register there, or not aligned
    InvalidParameter, ///< refused: a value that the camera does not take
    Failed,           ///< refused for another reason, or nonsense was answered
    Closed            ///< the connection has ended
};

/// True for what the camera itself has answered, be it a refusal.
constexpr bool isAnswer(Status status)
{
    return status != Status::NotSent && status != Status::NoAnswer && status != Status::Closed;
}

constexpr bool isRefusal(Status status)
{
    return isAnswer(status) && status != Status::Done;
}

/// One read of a batch and its result.
struct ReadTransfer
{
    RegisterRange range;
    Status status = Status::NotSent;
    std::vector<uint8_t> bytes; ///< as many as `range.size` when the status is `Done`
};

/// What a port may want to know of the description that its registers are used by.
struct PortHints
{
    /// A register of four bytes is a number that is transferred as such (a description of a schema
    /// below 1.1). The bytes are then those of the number, most significant first.
    bool isWordNumber = false;

    /// The registers with fixed addresses that may be read, ordered, none twice: memory that may be
    /// read in one go.
    std::vector<RegisterRange> declared;
};

/// Where registers are: the only thing that knows how they are transferred.
///
/// `RegisterIo` owns a port and calls it from one thread at a time, its own one unless the port is
/// immediate. The constructor and the destructor may run on other threads. Nothing here throws.
class Port
{
public:
    virtual ~Port() = default;

    /// True when a transfer takes no time, as with memory: then it runs on the thread that asks.
    virtual bool isImmediate() const { return false; }

    /// The largest number of registers that one command reads; longer batches are cut.
    virtual std::size_t batchSize() const { return 1; }

    virtual void setHints(const PortHints &) {}

    /// True when registers of four bytes are numbers, see `PortHints`; it may have been found out
    /// by looking at the camera.
    virtual bool isWordNumber() const { return false; }

    /// Reads the registers of the batch with as few commands as possible. Takes at most
    /// `Limits::readBudget` for each command, and ends with the first one that gets no answer. When
    /// it takes many commands, it may end before all are read, but never before some are: who waits
    /// for another transfer can come in between.
    virtual void read(std::vector<ReadTransfer> &batch) = 0;

    /// Takes at most `Limits::writeBudget`.
    virtual Status write(uint64_t address, const std::vector<uint8_t> &bytes) = 0;

    enum class Presence {
        Answers,  ///< and everything is as it was
        Silent,   ///< no answer
        Forgotten ///< answers, but this connection has no control any more
    };

    /// Asks the camera whether it is there, with one command that is not repeated; takes at most
    /// `Limits::keepAlivePeriod`. A late answer to an earlier question counts, too: a slow camera
    /// is there. Called when nothing else is on the cable.
    virtual Presence probe() { return Presence::Answers; }

    /// Has the call that is under way return soon, with or without success, and every later one at
    /// once: the port is about to be destroyed. May be called on any thread.
    virtual void interrupt() {}

    /// For a camera that is lost: looks for it and connects anew. False when it is not there, is in
    /// use elsewhere, or has another description; `RegisterIo` tries again later. May take as long
    /// as opening does; `isCancelled` becomes true when the port is not needed any more.
    virtual bool reopen(const std::function<bool()> &isCancelled)
    {
        static_cast<void>(isCancelled);
        return true;
    }
};

} // namespace OrvCameraIo
