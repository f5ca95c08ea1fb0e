// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <memory>
#include <mutex>

namespace OrvGenParam {

class Param;
class ParamEventSink;
class SinkRegistrations;

/// State shared by a sink and the parameters at which it is registered; for implementations of
/// `Param`. Hold the lock while calling the sink. Taking the lock waits for a running call to end.
struct SinkLink
{
    std::recursive_mutex calling;
    ParamEventSink *sink = nullptr; ///< null once the sink is destroyed; guarded by the lock
};

/// Receives notifications of parameter changes; see `Param::RegisterEventSink`. Header-only: a
/// program that implements parameters itself links no library for it.
class ORVCAMERAAPI_EXPORT ParamEventSink
{
public:
    /// Ends all registrations of this sink. When a notification may be running on another thread,
    /// unregister first: the members of a derived class are destroyed before this destructor runs.
    virtual ~ParamEventSink()
    {
        const std::lock_guard<std::recursive_mutex> lock(m_link->calling);
        m_link->sink = nullptr;
    }

    /// The parameter's value, limits or access mode may have changed. Must not throw.
    virtual void OnParameterUpdate(Param *param) = 0;

protected:
    ParamEventSink() : m_link(std::make_shared<SinkLink>()) { m_link->sink = this; }
    ParamEventSink(const ParamEventSink &) = delete;
    ParamEventSink &operator=(const ParamEventSink &) = delete;

private:
    friend class SinkRegistrations;   ///< of the library that implements the parameters
    std::shared_ptr<SinkLink> m_link; ///< held by the registrations, too; outlives the sink
};

} // namespace OrvGenParam
