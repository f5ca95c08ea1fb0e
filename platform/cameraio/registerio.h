// SPDX-License-Identifier: MIT
#pragma once

#include "port.h"

#include <GenApi/Types.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvCameraIo {

/// How much was asked of a port.
struct Transactions
{
    uint64_t reads = 0;  ///< registers
    uint64_t writes = 0; ///< registers
};

/// A request that was not waited for; destroying it drops it.
class Request
{
public:
    virtual ~Request() = default;
};

/// What happens to a camera. All calls come on the I/O thread and must return soon.
class RegisterIoListener
{
public:
    virtual ~RegisterIoListener() = default;

    /// The camera answers again after commands of it had failed for want of an answer.
    virtual void answersAgain() {}

    /// The camera counts as lost.
    virtual void lost() {}

    /// The lost camera is back. What was known of its registers is forgotten already.
    virtual void found() {}
};

/// The registers of an open camera: what is known of them, and the thread that transfers them.
///
/// Looking never waits. Transfers run on the I/O thread (an immediate port's on the thread that
/// asks), in the order of the requests, those with a waiting caller first. Results are known to
/// all from the moment they arrive. All functions may be called on any thread.
class RegisterIo
{
public:
    explicit RegisterIo(std::unique_ptr<Port> port);

    /// Fails what is waited for, drops the rest, closes the port.
    ~RegisterIo();
    RegisterIo(const RegisterIo &) = delete;
    RegisterIo &operator=(const RegisterIo &) = delete;

    /// Null for none. When this returns, no call of the former listener is under way.
    void setListener(RegisterIoListener *listener);

    void setHints(const PortHints &hints);

    /// Reading takes no time, see `Port::isImmediate`.
    bool isImmediate() const;

    /// See `Port::isWordNumber`.
    bool isWordNumber() const;

    /// A moment that is later than everything transferred so far and earlier than every transfer
    /// that begins from now on.
    uint64_t now();

    /// What is known of a register.
    struct Known
    {
        bool isKnown = false;
        Status status = Status::NoAnswer;
        std::vector<uint8_t> bytes;
    };

    /// What was transferred at or after `since`, and within the last `maxAge`; zero means any
    /// age. Exactly the register that was transferred: part of a longer one may be another register
    /// to the camera.
    Known look(const RegisterRange &range, uint64_t since,
               std::chrono::milliseconds maxAge = std::chrono::milliseconds::zero()) const;

    /// Has the registers read, and returns when each of them has a result or its budget has passed.
    /// At once while the camera is silent: the results are `NoAnswer`.
    void read(const std::vector<RegisterRange> &ranges);

    /// The same without waiting; `done` is called on the I/O thread unless the request is dropped
    /// before.
    std::unique_ptr<Request> readLater(std::vector<RegisterRange> ranges,
                                       std::function<void()> done);

    /// Writes in order, each only when those before it succeeded; returns when all is done.
    Status write(const std::vector<OrvGenApi::RegisterWrite> &writes);

    /// Forgets everything.
    void forgetAll();

    bool isSilent() const;
    bool isLost() const;

    /// Since the beginning.
    Transactions transactions() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace OrvCameraIo
