// SPDX-License-Identifier: MIT
#pragma once

#include "node.h"
#include "question.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OrvGenApi {

/// The part of a node map that does not depend on the source of the values: nodes, names, the
/// dependency graph, the lock, changes with their callbacks, and polling.
class NodeMapBase : public GenApi::INodeMap
{
public:
    explicit NodeMapBase(std::string deviceName);
    ~NodeMapBase() override;
    NodeMapBase(const NodeMapBase &) = delete;
    NodeMapBase &operator=(const NodeMapBase &) = delete;

    /// Null when there is none.
    Node *node(std::string_view name) const;
    const std::vector<std::unique_ptr<Node>> &nodes() const { return m_nodes; }

    /// A change of `source` will invalidate `dependent`.
    void addDependency(Node &source, Node &dependent);

    /// The selector determines which of several values `selected` has.
    void addSelection(Node &selector, Node &selected);
    void markAsFeature(Node &node) { node.m_isFeature = true; }

    /// The nodes, then all direct and indirect dependents, in the map's order and without
    /// duplicates.
    std::vector<Node *> closure(const std::vector<Node *> &nodes) const;

    /// The nodes that refer to this one.
    std::vector<Node *> parentsOf(const Node &node) const;

    /// Drops the caches of the nodes, of their sources, and of all nodes that depend on either.
    void invalidate(const std::vector<Node *> &nodes) const;

    /// The same, then calls the callbacks: for values that changed in the camera.
    void notifyChanged(const std::vector<Node *> &nodes);

    /// Evaluates a query: returns the result of `compute`, which runs under the lock and uses
    /// cached data. Missing data are fetched without the lock, and `compute` runs again. Inside
    /// another query of this thread it is part of that one.
    template<typename Compute>
    auto answer(Compute compute) const -> decltype(compute());

    /// As `answer`, but fetches nothing: returns false when data are missing, which have been noted
    /// in the query.
    template<typename Compute>
    bool look(Question &question, Compute compute) const;

    /// As `invalidate` for one node, except inside a query, which has read the node already.
    void refresh(Node &node) const;

    // For nodes that are being written. Changes are collected between `enterChange`, which takes
    // the lock, and the matching `leaveChange`, which releases it. Callbacks outside the lock run
    // when the outermost change ends.
    void enterChange();

    /// Inside a change: runs `compute` as `answer` does, and executes the writes that it notes.
    template<typename Compute>
    void computeInChange(Compute compute);

    void changed(const std::vector<Node *> &nodes);
    void forget(const std::vector<Node *> &nodes) const;
    void leaveChange();

    // INodeMap
    void GetNodes(GenApi::NodeList_t &nodes) const override;
    GenApi::INode *GetNode(const GenICam::gcstring &name) const override;
    void InvalidateNodes() const override;
    GenICam::gcstring GetDeviceName() override { return m_deviceName.c_str(); }
    void Poll(int64_t elapsedTime) override;
    GenApi::CLock &GetLock() const override { return m_lock; }
    uint64_t GetNumNodes() const override { return m_nodes.size(); }

protected:
    /// Throws `LogicalErrorException` when the name is taken.
    void adopt(std::unique_ptr<Node> node);

    /// Fetches the missing data of the query; a failure is a result, too. Called without the lock.
    /// Not needed in maps whose nodes store their values themselves.
    virtual void fetchMissing(Question &question) const;

    /// Executes the writes of the query; throws the error of the first one that failed. Called
    /// without the lock.
    virtual void carryOut(Question &question);

private:
    std::vector<Node *> withTerminals(const std::vector<Node *> &nodes) const;
    void callInside(const std::vector<Node *> &nodes);
    void fetchAgain(Question &question, int round) const;
    void interruptChange(const std::function<void()> &call);

    std::string m_deviceName;
    mutable GenApi::CLock m_lock;
    std::vector<std::unique_ptr<Node>> m_nodes;
    /// The keys refer to the names in the nodes.
    std::unordered_map<std::string_view, Node *> m_byName;
    int m_changeDepth = 0;
    /// Nodes to notify outside the lock, when the outermost change ends.
    std::vector<Node *> m_toNotify;
};

template<typename Compute>
auto NodeMapBase::answer(Compute compute) const -> decltype(compute())
{
    if (Question::current(*this))
        return compute();
    Question question(Question::Kind::Waiting);
    for (int round = 0;; ++round) {
        {
            const GenApi::AutoLock lock(m_lock);
            const Question::Scope scope(*this, question);
            try {
                return compute();
            } catch (const NotYetKnown &) {
            }
        }
        fetchAgain(question, round);
    }
}

template<typename Compute>
bool NodeMapBase::look(Question &question, Compute compute) const
{
    const GenApi::AutoLock lock(m_lock);
    const Question::Scope scope(*this, question);
    try {
        compute();
        return true;
    } catch (const NotYetKnown &) {
        return false;
    }
}

template<typename Compute>
void NodeMapBase::computeInChange(Compute compute)
{
    if (Question::current(*this))
        return compute();
    Question question(Question::Kind::Waiting);
    for (int round = 0;; ++round) {
        {
            const Question::Scope scope(*this, question);
            try {
                compute();
                break;
            } catch (const NotYetKnown &) {
            }
        }
        question.writes.clear();
        interruptChange([&] { fetchAgain(question, round); });
    }
    if (!question.writes.empty())
        interruptChange([&] { carryOut(question); });
}

template<typename Check, typename Write>
void Node::write(Check check, Write write)
{
    m_map.enterChange();
    bool checked = false;
    try {
        m_map.computeInChange(check);
        checked = true;
        m_map.computeInChange(write);
    } catch (...) {
        abandonWrite(checked);
        throw;
    }
    finishWrite();
}

} // namespace OrvGenApi
