// SPDX-License-Identifier: MIT
#include "nodewatch.h"

#include <genapi/nodes/node.h>

#include <atomic>

struct OrvGenParamWatch::State
{
    explicit State(OrvGenApiNode &watched) : node(&watched) {}

    void changed()
    {
        if (!sinks.isEmpty())
            keepPolled();
        if (std::this_thread::get_id() == homeThread)
            sinks.notify();
        else
            sinks.notifyLater();
    }

    void keepPolled()
    {
        if (auto *known = dynamic_cast<OrvGenApi::Node *>(node.load()))
            known->keepPolled();
    }

    std::atomic<OrvGenApiNode *> node; ///< null after the destruction of the node
    const std::thread::id homeThread = std::this_thread::get_id();
    OrvGenParam::SinkRegistrations sinks{nullptr};
    GenApi::CallbackHandleType handle = 0;
};

/// The callback that the node owns. Its destruction signals the end of the node.
class OrvGenParamWatch::Callback final : public GenApi::CNodeCallback
{
public:
    Callback(OrvGenApiNode &node, std::shared_ptr<State> state)
        : CNodeCallback(&node, GenApi::cbPostOutsideLock), m_state(std::move(state))
    {
    }

    void operator()(GenApi::ECallbackType type) const override
    {
        const std::shared_ptr<State> state = m_state; // the call may destroy the watch
        if (type == m_type)
            state->changed();
    }

    void Destroy() override
    {
        m_state->node = nullptr;
        delete this;
    }

private:
    const std::shared_ptr<State> m_state;
};

OrvGenParamWatch::OrvGenParamWatch(OrvGenApiNode &node, OrvGenParamChanged changed, void *userData)
    : m_state(std::make_shared<State>(node)), m_changed(changed), m_userData(userData)
{
    m_state->sinks.add(this);
    m_state->handle = node.RegisterCallback(new Callback(node, m_state));
    m_state->keepPolled();
}

OrvGenParamWatch::~OrvGenParamWatch()
{
    m_state->sinks.remove(this);
    try {
        if (auto *node = m_state->node.load())
            node->DeregisterCallback(m_state->handle);
    } catch (...) {
        // A failure to deregister the callback cannot be handled here.
    }
}

void OrvGenParamWatch::OnParameterUpdate(OrvGenParam::Param *)
{
    if (auto *node = m_state->node.load())
        m_changed(node, m_userData); // may destroy this object
}
