// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <memory>

namespace OrvGenParam {

class Param;
class SinkRegistrations;
struct SinkLink;

/// Someone who wants to know about changes of parameters; see `Param::RegisterEventSink`.
class ORVCAMERAAPI_EXPORT ParamEventSink
{
public:
    /// Ends every registration of this sink. When notifications may run on another thread at that
    /// moment, unregister first: what a derived class holds is gone before this destructor runs.
    virtual ~ParamEventSink();

    /// The parameter's value, limits or access mode may have changed. Must not throw.
    virtual void OnParameterUpdate(Param *param) = 0;

protected:
    ParamEventSink();
    ParamEventSink(const ParamEventSink &) = delete;
    ParamEventSink &operator=(const ParamEventSink &) = delete;

private:
    friend class SinkRegistrations;
    std::shared_ptr<SinkLink> m_link; ///< what the registrations hold; outlives the sink
};

} // namespace OrvGenParam
