// SPDX-License-Identifier: MIT
#pragma once

#include "node.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace OrvGenApi {

/// A node map as far as it does not matter where the values come from: the nodes and their names,
/// the dependency graph, the lock, changes with their callbacks, and polling.
class GENAPI_DECL NodeMapBase : public GenApi::INodeMap
{
public:
    explicit NodeMapBase(std::string deviceName);
    ~NodeMapBase() override;
    NodeMapBase(const NodeMapBase &) = delete;
    NodeMapBase &operator=(const NodeMapBase &) = delete;

    /// Null when there is none.
    Node *node(const std::string &name) const;
    const std::vector<std::unique_ptr<Node>> &nodes() const { return m_nodes; }

    /// A change of `source` will invalidate `dependent`.
    void addDependency(Node &source, Node &dependent);

    /// The selector decides which of several values `selected` stands for.
    void addSelection(Node &selector, Node &selected);
    void markAsFeature(Node &node) { node.m_isFeature = true; }

    /// The nodes, then all that depend on them, directly or not, in the map's order; each once.
    std::vector<Node *> closure(const std::vector<Node *> &nodes) const;

    /// The nodes that refer to this one.
    std::vector<Node *> parentsOf(const Node &node) const;

    /// Forgets the nodes' values, what they read them from, and all that depends on either.
    void invalidate(const std::vector<Node *> &nodes) const;

    /// As `invalidate`, then calls the callbacks: for values that changed in the camera.
    void notifyChanged(const std::vector<Node *> &nodes);

    // For nodes that are being written: between `enterChange`, which takes the lock, and the
    // matching `leaveChange`, which releases it, changes are reported. The callbacks that want the
    // lock released run when the outermost change is left.
    void enterChange();
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

private:
    std::vector<Node *> withTerminals(const std::vector<Node *> &nodes) const;
    void callInside(const std::vector<Node *> &nodes);

    std::string m_deviceName;
    mutable GenApi::CLock m_lock;
    std::vector<std::unique_ptr<Node>> m_nodes;
    std::unordered_map<std::string, Node *> m_byName;
    int m_changeDepth = 0;
    std::vector<Node *> m_toNotify; ///< outside the lock, when the outermost change is left
};

} // namespace OrvGenApi
