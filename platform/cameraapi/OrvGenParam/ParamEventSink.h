// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/Export.h>

#include <memory>

namespace OrvGenParam
{

class Param;
class SinkRegistrations;

/// Someone who wants to know about changes of parameters; see `Param::RegisterEventSink`.
class ORVCAMERAAPI_EXPORT ParamEventSink
{
public:
    /// Ends every registration of this sink.
    virtual ~ParamEventSink();

    /// The parameter's value, limits or access mode may have changed.
    virtual void OnParameterUpdate(Param *param) = 0;

protected:
    ParamEventSink();
    ParamEventSink(const ParamEventSink &) = delete;
    ParamEventSink &operator=(const ParamEventSink &) = delete;

private:
    friend class SinkRegistrations;
    std::shared_ptr<ParamEventSink *> m_self; ///< points to this object, or to null after its end
};

} // namespace OrvGenParam
