// SPDX-License-Identifier: MIT
#include "node.h"

#include "nodemapbase.h"

#include <algorithm>

using namespace GenApi;

namespace OrvGenApi {

EAccessMode combinedAccessMode(EAccessMode left, EAccessMode right)
{
    if (left == NI || right == NI)
        return NI;
    if (!IsReadable(left) && !IsWritable(left))
        return NA; // includes a node whose access mode depends on itself
    if (!IsReadable(right) && !IsWritable(right))
        return NA;
    if (left == RW)
        return right;
    if (right == RW || left == right)
        return left;
    return NA; // one is read-only, the other write-only
}

Node::Node(NodeMapBase &map, NodeProperties properties)
    : m_map(map), m_properties(std::move(properties))
{
}

Node::~Node() = default;

void Node::dropCache()
{
    m_access.drop();
}

EAccessMode Node::GetAccessMode() const
{
    struct Mark
    {
        bool &flag;
        explicit Mark(bool &f) : flag(f) { flag = true; }
        ~Mark() { flag = false; }
    };
    return m_map.answer([this] {
        if (m_accessBeingRead)
            return _CycleDetectAccesMode;
        const EAccessMode mode = m_access.get(accessIsCachable(), [this] {
            const Mark mark(m_accessBeingRead);
            return readAccessMode();
        });
        return combinedAccessMode(mode, m_imposedAccess);
    });
}

GenICam::gcstring Node::GetName(bool fullQualified) const
{
    if (!fullQualified)
        return name().c_str();
    const std::string prefix = m_properties.nameSpace == Standard ? "Std::" : "Cust::";
    return (prefix + name()).c_str();
}

EVisibility Node::GetVisibility() const
{
    return std::max(m_properties.visibility, m_imposedVisibility);
}

void Node::keepPolled()
{
    const AutoLock lock(m_map.GetLock());
    for (Node *node : terminalNodes())
        node->m_isPollWanted = true;
}

void Node::InvalidateNode()
{
    m_map.invalidate({this});
}

bool Node::IsCachable() const
{
    return m_properties.cachingMode != NoCache;
}

GenICam::gcstring Node::GetDeviceName() const
{
    return m_map.GetDeviceName();
}

void Node::collectChildren(std::vector<Node *> &, ELinkType) const {}

void Node::GetChildren(NodeList_t &children, ELinkType linkType) const
{
    std::vector<Node *> nodes;
    if (linkType == ctDependingNodes) {
        // A change of the node also changes the nodes through which it is written.
        auto *self = const_cast<Node *>(this);
        nodes = m_map.closure(self->writtenNodes());
        nodes.erase(std::remove(nodes.begin(), nodes.end(), self), nodes.end());
    } else if (linkType == ctInvalidatingChildren) {
        nodes = m_sources;
    } else if (linkType == ctParentNodes) {
        nodes = m_map.parentsOf(*this);
    } else {
        collectChildren(nodes, linkType);
    }
    for (Node *node : nodes)
        children.push_back(node);
}

void Node::GetParents(NodeList_t &parents) const
{
    GetChildren(parents, ctParentNodes);
}

CallbackHandleType Node::RegisterCallback(CNodeCallback *callback)
{
    return callback ? m_callbacks.add(callback) : 0;
}

bool Node::DeregisterCallback(CallbackHandleType handle)
{
    return m_callbacks.remove(handle, !m_map.GetLock().IsHeldByThisThread());
}

INodeMap *Node::GetNodeMap() const
{
    return &m_map;
}

void Node::ImposeAccessMode(EAccessMode mode)
{
    const AutoLock lock(m_map.GetLock());
    m_imposedAccess = mode;
}

void Node::ImposeVisibility(EVisibility visibility)
{
    const AutoLock lock(m_map.GetLock());
    m_imposedVisibility = visibility;
}

static void toFeatures(const std::vector<Node *> &nodes, FeatureList_t &features)
{
    features.clear();
    for (Node *node : nodes) {
        if (auto *value = dynamic_cast<IValue *>(node))
            features.push_back(value);
    }
}

void Node::GetSelectedFeatures(FeatureList_t &features) const
{
    toFeatures(m_selected, features);
}

void Node::GetSelectingFeatures(FeatureList_t &features) const
{
    toFeatures(m_selecting, features);
}

bool Node::isReadable() const
{
    try {
        return IsReadable(GetAccessMode());
    } catch (const NotYetKnown &) {
        return IsReadable(combinedAccessMode(readUnlockedAccessMode(), m_imposedAccess));
    }
}

void Node::requireReadable() const
{
    if (!isReadable())
        throw GenICam::AccessException(("The feature '" + name() + "' is not readable").c_str(),
                                       __FILE__, __LINE__);
}

void Node::requireWritable() const
{
    if (!IsWritable(GetAccessMode()))
        throw GenICam::AccessException(("The feature '" + name() + "' is not writable").c_str(),
                                       __FILE__, __LINE__);
}

void Node::abandonWrite(bool mayHaveWritten)
{
    if (mayHaveWritten)
        m_map.forget(writtenNodes());
    m_map.leaveChange();
}

void Node::finishWrite()
{
    m_map.changed(writtenNodes());
    m_map.leaveChange();
}

} // namespace OrvGenApi
