// SPDX-License-Identifier: MIT
#include "referencegraph.h"

#include <cameraio/limits.h>

#include <algorithm>

namespace Limits = OrvCameraIo::Limits;

namespace OrvDescription {

template<typename Visit>
void ReferenceGraph::forEachChild(const NodeLinks &links, Visit visit) const
{
    for (NodeLinks *child : links.valueChildren)
        visit(*child);
    for (NodeLinks *child : m_limits[links.index])
        visit(*child);
}

void ReferenceGraph::finish()
{
    const std::vector<NodeLinks *> order = childrenFirst();
    findUnusable(order);
    findCachable(order);
}

/// The nodes outside of cycles, in topological order: each after those that it is computed from.
std::vector<NodeLinks *> ReferenceGraph::childrenFirst() const
{
    std::vector<std::size_t> pending(m_nodes.size());
    std::vector<std::size_t> firstParent(m_nodes.size() + 1);
    for (const NodeLinks &links : m_nodes) {
        forEachChild(links, [&](const NodeLinks &child) {
            ++pending[links.index];
            ++firstParent[child.index + 1];
        });
    }
    for (std::size_t i = 1; i < firstParent.size(); ++i)
        firstParent[i] += firstParent[i - 1];
    std::vector<NodeLinks *> parents(firstParent.back());
    std::vector<std::size_t> nextParent = firstParent;
    for (NodeLinks &links : m_nodes)
        forEachChild(links,
                     [&](const NodeLinks &child) { parents[nextParent[child.index]++] = &links; });

    std::vector<NodeLinks *> order;
    order.reserve(m_nodes.size());
    for (NodeLinks &links : m_nodes) {
        if (pending[links.index] == 0)
            order.push_back(&links);
    }
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::size_t child = order[i]->index;
        for (std::size_t parent = firstParent[child]; parent < firstParent[child + 1]; ++parent) {
            if (--pending[parents[parent]->index] == 0)
                order.push_back(parents[parent]);
        }
    }
    return order;
}

void ReferenceGraph::findUnusable(const std::vector<NodeLinks *> &order)
{
    std::vector<int> depths(m_nodes.size(), -1);
    for (NodeLinks *links : order) {
        int depth = 0;
        forEachChild(*links, [&](const NodeLinks &child) {
            depth = std::max(depth, depths[child.index] + 1);
        });
        depths[links->index] = depth;
        const bool isComputable =
            std::none_of(links->valueChildren.begin(), links->valueChildren.end(),
                         [](const NodeLinks *child) { return child->isUnusable; });
        if (!isComputable || depth >= Limits::referenceDepth)
            links->isUnusable = true;
    }
    for (NodeLinks &links : m_nodes) {
        if (depths[links.index] < 0)
            links.isUnusable = true; // in a cycle, or computed from a node in one
    }
}

void ReferenceGraph::findCachable(const std::vector<NodeLinks *> &order)
{
    const auto areCachable = [](const std::vector<NodeLinks *> &nodes) {
        return std::all_of(nodes.begin(), nodes.end(),
                           [](const NodeLinks *links) { return links->isValueCachable; });
    };
    for (NodeLinks *links : order) {
        if (links->isUnusable)
            continue;
        links->isValueCachable = (!links->reg || links->reg->isCachable()) &&
                                 areCachable(links->valueChildren) &&
                                 areCachable(m_limits[links->index]);
    }
    for (NodeLinks *links : order) {
        if (links->isUnusable)
            continue;
        // Limits and access mode have the same source as the value.
        const NodeLinks *source =
            links->writtenChildren.empty() ? nullptr : links->writtenChildren.front();
        links->areLimitsCachable = links->isValueCachable && areCachable(links->limitChildren) &&
                                   (!source || source->areLimitsCachable);
        links->isAccessCachable =
            areCachable(links->predicates()) && (!source || source->isAccessCachable);
    }
}

} // namespace OrvDescription
