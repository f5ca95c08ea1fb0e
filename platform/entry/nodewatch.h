// SPDX-License-Identifier: MIT
#pragma once

#include <orvgenparamapi.h>

#include <cameraapi/sinkregistrations.h>

#include <memory>
#include <thread>

/// Calls a C function on changes of a node, on the thread that created the watch.
struct OrvGenParamWatch final : public OrvGenParam::ParamEventSink
{
public:
    OrvGenParamWatch(OrvGenApiNode &node, OrvGenParamChanged changed, void *userData);

    /// May be called from inside the function.
    ~OrvGenParamWatch() override;

    void OnParameterUpdate(OrvGenParam::Param *) override;

private:
    class Callback;
    struct State;

    const std::shared_ptr<State> m_state; ///< shared with the node's callback
    const OrvGenParamChanged m_changed;
    void *const m_userData;
};
