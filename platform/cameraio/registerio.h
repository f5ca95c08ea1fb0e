// SPDX-License-Identifier: MIT
#pragma once

#include "port.h"

#include <GenApi/Types.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvCameraIo {

/// The number of registers that were transferred.
struct Transactions
{
    uint64_t reads = 0;  ///< registers
    uint64_t writes = 0; ///< registers
};

/// A request that does not block; destroying it drops it.
class Request
{
public:
    virtual ~Request() = default;
};

/// Receives events of a camera. All calls are made on the I/O thread and must return soon.
class RegisterIoListener
{
public:
    virtual ~RegisterIoListener() = default;

    /// The camera answers again after commands without an answer.
    virtual void answersAgain() {}

    /// The camera counts as disconnected.
    virtual void lost() {}

    /// The camera is connected again. The register cache has been cleared.
    virtual void found() {}
};

/// The registers of an open camera: a cache, and the thread that transfers them.
///
/// Reading the cache never blocks. Transfers run on the I/O thread (for an immediate port on the
/// calling thread), in the order of the requests, blocking ones first. Results are in the cache as
/// soon as they arrive. All functions are thread-safe.
class RegisterIo
{
public:
    explicit RegisterIo(std::unique_ptr<Port> port);

    /// Makes blocking requests fail, drops the others, closes the port.
    ~RegisterIo();
    RegisterIo(const RegisterIo &) = delete;
    RegisterIo &operator=(const RegisterIo &) = delete;

    /// Null for none. When this returns, no call of the previous listener is running.
    void setListener(RegisterIoListener *listener);

    void setHints(const PortHints &hints);

    /// Reading takes no time, see `Port::isImmediate`.
    bool isImmediate() const;

    /// See `Port::isWordNumber`.
    bool isWordNumber() const;

    /// A logical time that is later than all transfers so far and earlier than every transfer that
    /// begins from now on.
    uint64_t now();

    /// The cached data of a register.
    struct Known
    {
        bool isKnown = false;
        Status status = Status::NoAnswer;
        std::vector<uint8_t> bytes;
    };

    /// The result that was transferred at or after `since`, and within the last `maxAge`; zero
    /// means any age. Only a transfer of exactly that register counts, because a part of a longer
    /// one may be another register to the camera.
    Known look(const RegisterRange &range, uint64_t since,
               std::chrono::milliseconds maxAge = std::chrono::milliseconds::zero()) const;

    /// Reads the registers, and returns when each has a result or its budget has passed. While the
    /// camera is silent it returns at once with `NoAnswer`.
    void read(const std::vector<RegisterRange> &ranges);

    /// The same without blocking; `done` is called on the I/O thread, but not after the request has
    /// been dropped.
    std::unique_ptr<Request> readLater(std::vector<RegisterRange> ranges,
                                       std::function<void()> done);

    /// Writes in order, each only after the previous ones succeeded; returns when all are done.
    Status write(const std::vector<OrvGenApi::RegisterWrite> &writes);

    /// Clears the cache.
    void forgetAll();

    bool isSilent() const;
    bool isLost() const;

    /// Since the construction.
    Transactions transactions() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace OrvCameraIo
