// SPDX-License-Identifier: MIT
#pragma once

#include "registerio.h"

#include <genapi/nodes/nodemapbase.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvCameraIo {

/// Reads node values without transfers, and fetches missing registers in few rounds: a round
/// transfers all registers that are missing at once, and there are as many rounds as references are
/// deep.
///
/// Functions that call nodes describe the values. When a register is missing, such a function is
/// aborted by an exception of an unknown class. It may be called several times.
class FetchAhead
{
public:
    using Ask = std::function<void()>;

    /// Both must outlive the object. Use it on the thread that runs the main context.
    FetchAhead(OrvGenApi::NodeMapBase &map, RegisterIo &io);
    ~FetchAhead();
    FetchAhead(const FetchAhead &) = delete;
    FetchAhead &operator=(const FetchAhead &) = delete;

    /// Returns true when everything was cached; GenICam exceptions pass through. Registers of an
    /// immediate port always count as cached.
    bool look(const Ask &ask) const;

    /// Fetches all registers that the functions need in the background. The functions run on the
    /// calling thread, later on the main context, which also calls `done` at the end: never from
    /// within this call, and not after the request was dropped.
    std::unique_ptr<Request> fetch(std::vector<Ask> asks, std::function<void()> done);

    /// The same, blocking; takes at most the budget of a command for each command of each round.
    void fetchNow(const std::vector<Ask> &asks) const;

private:
    class Fetch;
    struct Access;

    const std::shared_ptr<Access> m_access;
};

} // namespace OrvCameraIo
