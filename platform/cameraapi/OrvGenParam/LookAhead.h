// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <functional>
#include <memory>
#include <vector>

namespace OrvGenParam {

/// What a node map can do when it knows which of its values are known without asking the camera.
/// Ask a node map for it with `dynamic_cast`; one that lacks it answers every question at once or
/// makes the caller wait.
///
/// What is asked is said by functions that call nodes of the map, any of them, in any way that only
/// reads. Within `look` and `fetch` such a call takes no transfer; when something is not known, the
/// function is left by an exception that derives from no class and that it must let pass
/// (`catch (...)` would break it). It may be run several times.
class ORVCAMERAAPI_EXPORT LookAhead
{
public:
    using Ask = std::function<void()>;

    /// A fetch that is under way; destroying it ends it.
    class Request
    {
    public:
        virtual ~Request() = default;
    };

    /// Runs the function; true when everything that it asked for was known, false when it was left
    /// before its end. Exceptions of GenICam pass. Values that the camera changes by itself count
    /// as known when they are at most a second old, or were read by a fetch that has ended within
    /// the last second.
    virtual bool look(const Ask &ask) const = 0;

    /// Reads in the background what the functions find missing, in as few transfers as possible,
    /// until nothing is missing. They run on the calling thread, which must be the one that runs
    /// the default GLib main context, and `done` is called from that context: never from within
    /// this call, not at all when the request was destroyed before.
    virtual std::unique_ptr<Request> fetch(std::vector<Ask> asks, std::function<void()> done) = 0;

    /// The same, waiting.
    virtual void fetchNow(const std::vector<Ask> &asks) = 0;

protected:
    virtual ~LookAhead() = default;
};

} // namespace OrvGenParam
