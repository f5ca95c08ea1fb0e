// SPDX-License-Identifier: MIT
#pragma once

#include "nodelinks.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace OrvDescription {

/// Properties that result from all references of a description: nodes that depend on themselves, on
/// an unusable node or on too many nodes are unusable, and nodes that depend on a register that
/// must not be cached must not be cached either. Takes linear time in the number of references.
class ReferenceGraph
{
public:
    explicit ReferenceGraph(std::deque<NodeLinks> &nodes) : m_nodes(nodes), m_limits(nodes.size())
    {
    }

    /// A limit of a node is read for the value of another one.
    void addLimit(const NodeLinks &reader, NodeLinks &limit)
    {
        m_limits[reader.index].push_back(&limit);
    }

    /// Sets the properties of the nodes.
    void finish();

private:
    template<typename Visit>
    void forEachChild(const NodeLinks &links, Visit visit) const;
    std::vector<NodeLinks *> childrenFirst() const;
    void findUnusable(const std::vector<NodeLinks *> &order);
    void findCachable(const std::vector<NodeLinks *> &order);

    std::deque<NodeLinks> &m_nodes;
    std::vector<std::vector<NodeLinks *>> m_limits;
};

} // namespace OrvDescription
