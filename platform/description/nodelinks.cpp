// SPDX-License-Identifier: MIT
#include "nodelinks.h"

#include "rawvalue.h"

#include <optional>

using namespace GenApi;
using namespace OrvGenApi;

namespace OrvDescription {

namespace {

/// A predicate that cannot be computed leaves nothing available.
std::optional<bool> isTrue(Node &predicate)
{
    try {
        return rawInteger(predicate) != 0;
    } catch (const GenICam::RuntimeException &) {
    } catch (const GenICam::PropertyException &) {
    }
    return std::nullopt;
}

} // namespace

EAccessMode restrictedAccessMode(const NodeLinks &links,
                                 const std::function<EAccessMode()> &ownMode)
{
    if (links.isUnusable)
        return NA;
    if (links.isImplemented) {
        const auto implemented = isTrue(*links.isImplemented);
        if (!implemented || !*implemented)
            return implemented ? NI : NA;
    }
    if (links.isAvailable && !isTrue(*links.isAvailable).value_or(false))
        return NA;
    const EAccessMode mode = combinedAccessMode(ownMode(), links.imposedAccess);
    if (!IsWritable(mode) || !links.isLocked || !isTrue(*links.isLocked).value_or(true))
        return mode;
    return mode == RW ? RO : NA;
}

void appendChildren(const NodeLinks &links, ELinkType linkType, std::vector<Node *> &children)
{
    const auto append = [&](const std::vector<Node *> &nodes) {
        children.insert(children.end(), nodes.begin(), nodes.end());
    };
    switch (linkType) {
    case ctReadingChildren:
        append(links.valueChildren);
        append(links.limitChildren);
        for (Node *node : {links.isImplemented, links.isAvailable, links.isLocked}) {
            if (node)
                children.push_back(node);
        }
        break;
    case ctValueChangingChildren:
        append(links.valueChildren);
        break;
    case ctWritingChildren:
        append(links.writtenChildren);
        break;
    case ctTerminalNodes:
        children.insert(children.end(), links.terminals.begin() + (links.terminals.empty() ? 0 : 1),
                        links.terminals.end());
        break;
    default:
        break;
    }
}

} // namespace OrvDescription
