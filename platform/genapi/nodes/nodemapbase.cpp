// SPDX-License-Identifier: MIT
#include "nodemapbase.h"

#include <algorithm>
#include <set>
#include <utility>

using namespace GenApi;

namespace OrvGenApi {

namespace {

bool contains(const std::vector<Node *> &nodes, const Node *node)
{
    return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

/// Each node is in the list of the other one. The shorter list is searched, so that a node with
/// very many neighbours does not slow down the others.
bool areLinked(const std::vector<Node *> &list, const Node &node,
               const std::vector<Node *> &otherList, const Node &otherNode)
{
    return list.size() < otherList.size() ? contains(list, &node) : contains(otherList, &otherNode);
}

} // namespace

NodeMapBase::NodeMapBase(std::string deviceName) : m_deviceName(std::move(deviceName)) {}

NodeMapBase::~NodeMapBase() = default;

void NodeMapBase::adopt(std::unique_ptr<Node> node)
{
    if (!m_byName.emplace(node->name(), node.get()).second)
        throw GenICam::LogicalErrorException(
            ("There is already a node '" + node->name() + "'").c_str(), __FILE__, __LINE__);
    node->m_index = m_nodes.size();
    m_nodes.push_back(std::move(node));
}

Node *NodeMapBase::node(std::string_view name) const
{
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}

void NodeMapBase::addDependency(Node &source, Node &dependent)
{
    if (areLinked(source.m_dependents, dependent, dependent.m_sources, source))
        return;
    source.m_dependents.push_back(&dependent);
    dependent.m_sources.push_back(&source);
}

void NodeMapBase::addSelection(Node &selector, Node &selected)
{
    if (areLinked(selector.m_selected, selected, selected.m_selecting, selector))
        return;
    selector.m_selected.push_back(&selected);
    selected.m_selecting.push_back(&selector);
    addDependency(selector, selected);
}

std::vector<Node *> NodeMapBase::closure(const std::vector<Node *> &nodes) const
{
    std::vector<bool> seen(m_nodes.size(), false);
    std::vector<Node *> first;
    for (Node *node : nodes) {
        if (seen[node->m_index])
            continue;
        seen[node->m_index] = true;
        first.push_back(node);
    }

    std::vector<Node *> dependents;
    std::vector<Node *> pending = first;
    while (!pending.empty()) {
        const Node *node = pending.back();
        pending.pop_back();
        for (Node *dependent : node->m_dependents) {
            if (seen[dependent->m_index])
                continue;
            seen[dependent->m_index] = true;
            dependents.push_back(dependent);
            pending.push_back(dependent);
        }
    }
    std::sort(dependents.begin(), dependents.end(),
              [](const Node *a, const Node *b) { return a->m_index < b->m_index; });
    first.insert(first.end(), dependents.begin(), dependents.end());
    return first;
}

std::vector<Node *> NodeMapBase::parentsOf(const Node &node) const
{
    std::vector<Node *> parents;
    for (const auto &other : m_nodes) {
        std::vector<Node *> children;
        other->collectChildren(children, ctReadingChildren);
        if (contains(children, &node))
            parents.push_back(other.get());
    }
    return parents;
}

std::vector<Node *> NodeMapBase::withTerminals(const std::vector<Node *> &nodes) const
{
    std::vector<Node *> all;
    for (Node *node : nodes) {
        const auto terminals = node->terminalNodes();
        all.insert(all.end(), terminals.begin(), terminals.end());
    }
    return all;
}

void NodeMapBase::invalidate(const std::vector<Node *> &nodes) const
{
    const AutoLock lock(m_lock);
    forget(withTerminals(nodes));
}

void NodeMapBase::forget(const std::vector<Node *> &nodes) const
{
    for (Node *node : nodes)
        node->dropRegister();
    for (Node *node : closure(nodes)) {
        // A register depends on nodes that determine its address or invalidate it; either way its
        // cached contents are invalid.
        node->dropRegister();
        node->dropCache();
    }
}

void NodeMapBase::notifyChanged(const std::vector<Node *> &nodes)
{
    enterChange();
    const auto all = withTerminals(nodes);
    for (Node *node : all)
        node->dropRegister();
    changed(all);
    leaveChange();
}

void NodeMapBase::refresh(Node &node) const
{
    if (!Question::current(*this))
        invalidate({&node});
}

void NodeMapBase::fetchMissing(Question &) const {}

void NodeMapBase::carryOut(Question &) {}

void NodeMapBase::fetchAgain(Question &question, int round) const
{
    // More than the depth of references in any description: a register changes faster than it can
    // be read.
    constexpr int maxRounds = 1000;
    if (round == maxRounds)
        throw GenICam::RuntimeException("The camera's registers do not come to rest", __FILE__,
                                        __LINE__);
    fetchMissing(question);
    question.missing.clear();
    question.beginRound();
}

void NodeMapBase::interruptChange(const std::function<void()> &call)
{
    // Changes by other threads in between are not part of this one.
    const int depth = std::exchange(m_changeDepth, 0);
    m_lock.Unlock();
    const auto resume = [&] {
        m_lock.Lock();
        m_changeDepth = depth;
    };
    try {
        call();
    } catch (...) {
        resume();
        throw;
    }
    resume();
}

void NodeMapBase::enterChange()
{
    m_lock.Lock();
    ++m_changeDepth;
}

void NodeMapBase::changed(const std::vector<Node *> &nodes)
{
    const std::set<const Node *> written(nodes.begin(), nodes.end());
    const auto all = closure(nodes);
    for (Node *node : all) {
        // The registers just written are cached; those that depend on them are invalid.
        if (written.count(node) == 0)
            node->dropRegister();
        node->dropCache();
    }
    for (Node *node : all) {
        if (node->m_callbacks.isEmpty() || node->m_isToBeNotified)
            continue;
        node->m_isToBeNotified = true;
        m_toNotify.push_back(node);
    }
    callInside(all);
}

void NodeMapBase::callInside(const std::vector<Node *> &nodes)
{
    for (Node *node : nodes)
        node->m_callbacks.call(cbPostInsideLock);
}

void NodeMapBase::leaveChange()
{
    std::vector<Node *> toNotify;
    if (--m_changeDepth == 0)
        toNotify.swap(m_toNotify);
    for (Node *node : toNotify)
        node->m_isToBeNotified = false;
    m_lock.Unlock();
    for (Node *node : toNotify)
        node->m_callbacks.call(cbPostOutsideLock);
}

void NodeMapBase::GetNodes(NodeList_t &nodes) const
{
    for (const auto &node : m_nodes)
        nodes.push_back(node.get());
}

INode *NodeMapBase::GetNode(const GenICam::gcstring &name) const
{
    const std::string text = name.c_str();
    const auto qualified = [&](const char *prefix, ENameSpace nameSpace) -> INode * {
        const std::string start = prefix;
        if (text.compare(0, start.size(), start) != 0)
            return nullptr;
        Node *found = node(text.substr(start.size()));
        return found && found->GetNameSpace() == nameSpace ? found : nullptr;
    };
    if (INode *found = qualified("Std::", Standard))
        return found;
    if (INode *found = qualified("Cust::", Custom))
        return found;
    return node(text);
}

void NodeMapBase::InvalidateNodes() const
{
    const AutoLock lock(m_lock);
    for (const auto &node : m_nodes) {
        node->dropRegister();
        node->dropCache();
    }
}

void NodeMapBase::Poll(int64_t elapsedTime)
{
    std::vector<Node *> due;
    {
        const AutoLock lock(m_lock);
        for (const auto &node : m_nodes) {
            const int64_t period = node->GetPollingTime();
            if (period < 0)
                continue;
            node->m_sincePolled += elapsedTime;
            if (node->m_sincePolled < period)
                continue;
            node->m_sincePolled = 0;
            due.push_back(node.get());
        }
    }
    if (!due.empty())
        notifyChanged(due);
}

} // namespace OrvGenApi
