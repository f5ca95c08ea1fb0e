// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvGenParam {

/// Implemented by node maps that can tell cached values from values that need a transfer. Query a
/// node map for it with `dynamic_cast`. A node map without it returns every value at once or blocks
/// the caller.
///
/// A read is described by a function that calls nodes of the map. It may call any node, but must
/// only read. Within `look` and `fetch` such a call causes no transfer. When a value is not cached,
/// the call throws an exception that derives from no class. The function must not catch it (`catch
/// (...)` would). The function may be called several times.
class ORVCAMERAAPI_EXPORT LookAhead
{
public:
    using Ask = std::function<void()>;

    /// A running fetch; destroying the object cancels it.
    class Request
    {
    public:
        virtual ~Request() = default;
    };

    /// Calls the function. Returns true when all values that it reads were cached, false when it
    /// was aborted. GenICam exceptions pass through. A value that the camera changes by itself
    /// counts as cached when it is at most a second old, or was read by a fetch that ended within
    /// the last second.
    virtual bool look(const Ask &ask) const = 0;

    /// Reads the values that the functions need in the background, in as few transfers as possible,
    /// until all of them are cached. The functions run on the calling thread, which must be the one
    /// that runs the default GLib main context. `done` is called from that context, never within
    /// this call. It is not called after the request has been destroyed.
    virtual std::unique_ptr<Request> fetch(std::vector<Ask> asks, std::function<void()> done) = 0;

    /// The same, but blocks until all values are cached.
    virtual void fetchNow(const std::vector<Ask> &asks) = 0;

protected:
    virtual ~LookAhead() = default;
};

} // namespace OrvGenParam
