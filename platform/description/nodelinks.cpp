// SPDX-License-Identifier: MIT
#include "nodelinks.h"

#include "description.h"
#include "rawvalue.h"

#include <genapi/nodes/question.h>

#include <optional>
#include <set>

using namespace GenApi;
using namespace OrvGenApi;

namespace OrvDescription {

namespace {

/// A feature is not available when its predicate cannot be evaluated.
std::optional<bool> isTrue(Node &predicate)
{
    try {
        return rawInteger(predicate) != 0;
    } catch (const GenICam::RuntimeException &) {
    } catch (const GenICam::PropertyException &) {
    }
    return std::nullopt;
}

/// The reachable nodes in breadth-first order without duplicates; the first node comes first.
std::vector<NodeLinks *> reachable(NodeLinks &first, std::vector<NodeLinks *> NodeLinks::*children)
{
    std::vector<NodeLinks *> found = {&first};
    if (first.isUnusable)
        return found;
    std::set<const NodeLinks *> seen = {&first};
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (NodeLinks *child : found[i]->*children) {
            if (!child->isUnusable && seen.insert(child).second)
                found.push_back(child);
        }
    }
    return found;
}

} // namespace

std::vector<NodeLinks *> NodeLinks::predicates() const
{
    std::vector<NodeLinks *> stated;
    for (NodeLinks *predicate : {isImplemented, isAvailable, isLocked}) {
        if (predicate)
            stated.push_back(predicate);
    }
    return stated;
}

std::vector<Node *> NodeLinks::written()
{
    std::vector<Node *> nodes;
    for (const NodeLinks *links : reachable(*this, &NodeLinks::writtenChildren))
        nodes.push_back(links->node);
    return nodes;
}

std::vector<Node *> NodeLinks::terminals()
{
    std::vector<Node *> nodes;
    for (const NodeLinks *links : reachable(*this, &NodeLinks::valueChildren)) {
        if (links == this || links->reg)
            nodes.push_back(links->node);
    }
    return nodes;
}

GenICam::gcstring NodeLinks::text(std::string_view tag) const
{
    const std::string_view found = description ? description->text(tag) : std::string_view();
    return {found.data(), found.size()};
}

EAccessMode unlockedAccessMode(const NodeLinks &links, const std::function<EAccessMode()> &ownMode)
{
    if (links.isUnusable)
        return NA;
    std::optional<bool> isImplemented = true;
    std::optional<bool> isAvailable = true;
    EAccessMode mode = RW;
    Gather gather;
    const auto look = [&](const NodeLinks *predicate, std::optional<bool> &result) {
        if (predicate)
            gather([&] { result = isTrue(*predicate->node); });
    };
    look(links.isImplemented, isImplemented);
    if (!isImplemented || !*isImplemented)
        return isImplemented ? NI : NA;
    look(links.isAvailable, isAvailable);
    if (!isAvailable.value_or(false)) {
        gather.finish();
        return NA;
    }
    gather([&] { mode = combinedAccessMode(ownMode(), links.imposedAccess); });
    gather.finish();
    return mode;
}

EAccessMode restrictedAccessMode(const NodeLinks &links,
                                 const std::function<EAccessMode()> &ownMode)
{
    std::optional<bool> isLocked = false;
    EAccessMode mode = RW;
    Gather gather;
    gather([&] { mode = unlockedAccessMode(links, ownMode); });
    if (links.isLocked && IsWritable(mode))
        gather([&] { isLocked = isTrue(*links.isLocked->node); });
    gather.finish();
    if (!IsWritable(mode) || !isLocked.value_or(true))
        return mode;
    return mode == RW ? RO : NA;
}

void appendChildren(NodeLinks &links, ELinkType linkType, std::vector<Node *> &children)
{
    const auto append = [&](const std::vector<NodeLinks *> &nodes) {
        for (const NodeLinks *child : nodes)
            children.push_back(child->node);
    };
    switch (linkType) {
    case ctReadingChildren:
        append(links.valueChildren);
        append(links.limitChildren);
        append(links.predicates());
        break;
    case ctValueChangingChildren:
        append(links.valueChildren);
        break;
    case ctWritingChildren:
        append(links.writtenChildren);
        break;
    case ctTerminalNodes: {
        const std::vector<Node *> terminals = links.terminals();
        children.insert(children.end(), terminals.begin() + 1, terminals.end());
        break;
    }
    default:
        break;
    }
}

} // namespace OrvDescription
