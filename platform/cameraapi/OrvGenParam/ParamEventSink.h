// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <memory>
#include <mutex>

namespace OrvGenParam {

class Param;
class ParamEventSink;
class SinkRegistrations;

/// The one thing that a sink and the parameters it is registered at share; for those who implement
/// `Param`. A caller of the sink holds the lock while it calls; one who wants no call to be under
/// way takes it.
struct SinkLink
{
    std::recursive_mutex calling;
    ParamEventSink *sink = nullptr; ///< null after the sink's end; guarded by the lock
};

/// To be told about changes of parameters; see `Param::RegisterEventSink`. Complete in this header:
/// a program that implements parameters itself links nothing for it.
class ORVCAMERAAPI_EXPORT ParamEventSink
{
public:
    /// Ends every registration of this sink. When notifications may run on another thread at that
    /// moment, unregister first: what a derived class holds is gone before this destructor runs.
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
    friend class SinkRegistrations; ///< of the library whose parameters they are
    std::shared_ptr<SinkLink> m_link; ///< what the registrations hold; outlives the sink
};

} // namespace OrvGenParam
