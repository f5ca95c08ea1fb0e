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

/// The result of a transfer.
enum class Status {
    Done,
    NotSent,          ///< not attempted, see `Port::read`
    NoAnswer,         ///< no answer within the budget; dropped as soon as the camera answers again
    AccessDenied,     ///< refused: no access right, write-protected, or busy
    InvalidAddress,   ///< refused: no register there, or not aligned
    InvalidParameter, ///< refused: an invalid value
    Failed,           ///< refused for another reason, or an invalid answer
    Closed            ///< the connection has ended
};

/// True for an answer of the camera itself, including a refusal.
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

/// Data of the description that a port may use.
struct PortHints
{
    /// Registers of four bytes are transferred as numbers (descriptions of a schema below 1.1).
    /// Their bytes are then those of the number, most significant first.
    bool isWordNumber = false;

    /// The readable registers with fixed addresses, sorted and without duplicates: memory that may
    /// be read in one command.
    std::vector<RegisterRange> declared;
};

/// Transfers registers; hides the protocol.
///
/// `RegisterIo` owns a port and calls it from one thread at a time, its own one unless the port is
/// immediate. The constructor and the destructor may run on other threads. No function throws.
class Port
{
public:
    virtual ~Port() = default;

    /// True when a transfer takes no time, as with memory: then it runs on the calling thread.
    virtual bool isImmediate() const { return false; }

    /// The largest number of registers per command; longer batches are split.
    virtual std::size_t batchSize() const { return 1; }

    virtual void setHints(const PortHints &) {}

    /// True when registers of four bytes are numbers, see `PortHints`; the port may have detected
    /// that by tests with the camera.
    virtual bool isWordNumber() const { return false; }

    /// Reads the registers of the batch with as few commands as possible. Takes at most
    /// `Limits::readBudget` per command, and ends with the first one without an answer. It may end
    /// early after some registers have been read, so that other callers do not wait for many
    /// commands.
    virtual void read(std::vector<ReadTransfer> &batch) = 0;

    /// Takes at most `Limits::writeBudget`.
    virtual Status write(uint64_t address, const std::vector<uint8_t> &bytes) = 0;

    enum class Presence {
        Answers,  ///< an answer, and the connection is as before
        Silent,   ///< no answer
        Forgotten ///< answers, but this connection has lost control
    };

    /// Checks with one command, which is not repeated, that the camera is there; takes at most
    /// `Limits::keepAlivePeriod`. A late answer to an earlier probe counts, too, because the camera
    /// may be slow. Called when no other command is pending.
    virtual Presence probe() { return Presence::Answers; }

    /// Makes the running call return soon, with or without success, and every later one at once,
    /// because the port is about to be destroyed. Thread-safe.
    virtual void interrupt() {}

    /// For a disconnected camera: searches for it and reconnects. Returns false when it is not
    /// there, is in use by another program, or has another description; `RegisterIo` tries again
    /// later. May take as long as opening does; `isCancelled` becomes true when the port is no
    /// longer needed.
    virtual bool reopen(const std::function<bool()> &isCancelled)
    {
        static_cast<void>(isCancelled);
        return true;
    }
};

} // namespace OrvCameraIo
