// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/INodeMap.h>

#include <memory>

namespace OrvCam {

/// Polls a node map from the default GLib main context, as long as it exists. When the destructor
/// returns, no poll is under way on another thread and none will come.
class NodeMapPoller
{
public:
    explicit NodeMapPoller(GenApi::INodeMap &nodeMap);
    ~NodeMapPoller();
    NodeMapPoller(const NodeMapPoller &) = delete;
    NodeMapPoller &operator=(const NodeMapPoller &) = delete;

private:
    struct Target;

    static int tick(void *data);

    std::shared_ptr<Target> m_target;
};

} // namespace OrvCam
