// SPDX-License-Identifier: MIT
#pragma once

#include "registerio.h"

#include <genapi/nodes/nodemapbase.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvCameraIo {

/// Looks at the nodes of a map without transfers, and fetches in few rounds what looking has found
/// missing: a round transfers all that is missing at once, and there are as many rounds as
/// references are deep.
///
/// What is looked at is said by functions that ask nodes of the map. Such a function is left by an
/// exception of no class that it knows when something is missing, and may be run several times.
class FetchAhead
{
public:
    using Ask = std::function<void()>;

    /// Both must outlive the object, which belongs to the thread that runs the main context.
    FetchAhead(OrvGenApi::NodeMapBase &map, RegisterIo &io);
    ~FetchAhead();
    FetchAhead(const FetchAhead &) = delete;
    FetchAhead &operator=(const FetchAhead &) = delete;

    /// True when everything was known; exceptions of GenICam pass. What an immediate port has is
    /// always known.
    bool look(const Ask &ask) const;

    /// Has all that the functions ask for read in the background. They run on the thread that
    /// calls, then on the main context, from where `done` is called in the end: never from within
    /// this call, and not at all when the request has been dropped.
    std::unique_ptr<Request> fetch(std::vector<Ask> asks, std::function<void()> done);

    /// The same, waiting; takes at most the budget of a command for each command of each round.
    void fetchNow(const std::vector<Ask> &asks) const;

private:
    class Fetch;
    struct Access;

    const std::shared_ptr<Access> m_access;
};

} // namespace OrvCameraIo
