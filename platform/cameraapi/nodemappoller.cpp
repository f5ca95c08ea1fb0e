// SPDX-License-Identifier: MIT
#include "nodemappoller.h"

#include <Base/GCException.h>

#include <glib.h>

#include <mutex>

namespace OrvCam {

namespace {

constexpr unsigned periodMs = 200;

} // namespace

struct NodeMapPoller::Target
{
    /// Recursive: what a poll calls may end the polling.
    std::recursive_mutex mutex;
    GenApi::INodeMap *nodeMap = nullptr;
    gint64 lastPoll = g_get_monotonic_time(); ///< us
    std::shared_ptr<Target> self;             ///< for the context, until its last turn

    void poll();
};

NodeMapPoller::NodeMapPoller(GenApi::INodeMap &nodeMap) : m_target(std::make_shared<Target>())
{
    const std::lock_guard<std::recursive_mutex> lock(m_target->mutex);
    m_target->nodeMap = &nodeMap;
    m_target->self = m_target;
    g_timeout_add(periodMs, &NodeMapPoller::tick, m_target.get());
}

NodeMapPoller::~NodeMapPoller()
{
    // The source removes itself at its next turn: destroying it here would race with the context
    // that is about to call it.
    const std::lock_guard<std::recursive_mutex> lock(m_target->mutex);
    m_target->nodeMap = nullptr;
}

int NodeMapPoller::tick(void *data)
{
    std::shared_ptr<Target> target; // outlives the lock
    auto *raw = static_cast<Target *>(data);
    const std::lock_guard<std::recursive_mutex> lock(raw->mutex);
    target = raw->self;
    if (target->nodeMap)
        target->poll();
    if (target->nodeMap)
        return G_SOURCE_CONTINUE;
    target->self.reset();
    return G_SOURCE_REMOVE;
}

void NodeMapPoller::Target::poll()
{
    const gint64 elapsedMs = (g_get_monotonic_time() - lastPoll) / 1000;
    lastPoll += elapsedMs * 1000;
    try {
        nodeMap->Poll(elapsedMs);
    } catch (const GenICam::GenericException &) {
        // A node that cannot be polled now may be at the next turn.
    }
}

} // namespace OrvCam
