// SPDX-License-Identifier: MIT
#pragma once

#include "nodelinks.h"

#include <cstdint>
#include <deque>
#include <vector>

namespace OrvDescription {

/// What follows from all references of a description together: nodes that are computed from
/// themselves, from something unusable or over too many others are unusable, and what is computed
/// from a register that must not be cached must not be cached either. Takes time in proportion to
/// the number of references.
class ReferenceGraph
{
public:
    explicit ReferenceGraph(std::deque<NodeLinks> &nodes) : m_nodes(nodes), m_limits(nodes.size())
    {
    }

    /// A limit of a node is read in order to know the value of another one.
    void addLimit(const NodeLinks &reader, NodeLinks &limit)
    {
        m_limits[reader.index].push_back(&limit);
    }

    /// Sets what the nodes say of themselves.
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
