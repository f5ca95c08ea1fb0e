// SPDX-License-Identifier: MIT
#pragma once

#include "cached.h"
#include "callbacklist.h"

#include <GenApi/GenApi.h>

#include <string>
#include <utility>
#include <vector>

namespace OrvGenApi {

class NodeMapBase;

/// The constant properties of a node.
struct NodeProperties
{
    std::string name;
    std::string displayName;
    std::string toolTip;
    std::string description;
    std::string eventId;
    GenApi::ENameSpace nameSpace = GenApi::Custom;
    GenApi::EVisibility visibility = GenApi::Beginner;
    GenApi::ECachingMode cachingMode = GenApi::WriteThrough;
    int64_t pollingTime = -1; ///< ms, -1 for none
    bool streamable = false;
    bool deprecated = false;
};

/// Base of all nodes: identity, access mode, position in the dependency graph and callbacks.
/// Derived classes implement the value interfaces with their checks and caches; classes derived
/// from those supply the values.
class Node : public virtual GenApi::INode, public virtual GenApi::ISelector
{
public:
    Node(NodeMapBase &map, NodeProperties properties);
    ~Node() override;
    Node(const Node &) = delete;
    Node &operator=(const Node &) = delete;

    const std::string &name() const { return m_properties.name; }
    NodeProperties &properties() { return m_properties; }
    const NodeProperties &properties() const { return m_properties; }
    NodeMapBase &map() const { return m_map; }

    /// Drops the caches of this node alone.
    virtual void dropCache();

    /// Drops the cached contents of the register. Does nothing for other nodes.
    virtual void dropRegister() {}

    /// Makes the node, and the nodes of its value, be polled even if the value is not read, because
    /// a client waits for changes.
    void keepPolled();

    /// Whether `keepPolled` was called since the last call of this function.
    bool takePollWanted() { return std::exchange(m_isPollWanted, false); }

    /// The nodes whose values change when this one is written, this one first.
    virtual std::vector<Node *> writtenNodes() { return {this}; }

    /// The nodes whose caches must be dropped for the next query to read the camera, this one
    /// first.
    virtual std::vector<Node *> terminalNodes() { return {this}; }

    // INode
    GenApi::EAccessMode GetAccessMode() const override;
    GenICam::gcstring GetName(bool fullQualified = false) const override;
    GenApi::ENameSpace GetNameSpace() const override { return m_properties.nameSpace; }
    GenApi::EVisibility GetVisibility() const override;
    void InvalidateNode() override;
    bool IsCachable() const override;
    GenApi::ECachingMode GetCachingMode() const override { return m_properties.cachingMode; }
    int64_t GetPollingTime() const override { return m_properties.pollingTime; }
    GenICam::gcstring GetToolTip() const override { return m_properties.toolTip.c_str(); }
    GenICam::gcstring GetDescription() const override { return m_properties.description.c_str(); }
    GenICam::gcstring GetDisplayName() const override { return m_properties.displayName.c_str(); }
    GenICam::gcstring GetDeviceName() const override;
    void GetChildren(GenApi::NodeList_t &children,
                     GenApi::ELinkType linkType = GenApi::ctReadingChildren) const override;
    void GetParents(GenApi::NodeList_t &parents) const override;
    GenApi::CallbackHandleType RegisterCallback(GenApi::CNodeCallback *callback) override;
    bool DeregisterCallback(GenApi::CallbackHandleType handle) override;
    GenApi::INodeMap *GetNodeMap() const override;
    GenICam::gcstring GetEventID() const override { return m_properties.eventId.c_str(); }
    bool IsStreamable() const override { return m_properties.streamable; }
    bool IsDeprecated() const override { return m_properties.deprecated; }
    bool IsFeature() const override { return m_isFeature; }
    void ImposeAccessMode(GenApi::EAccessMode mode) override;
    void ImposeVisibility(GenApi::EVisibility visibility) override;

    // ISelector
    bool IsSelector() const override { return !m_selected.empty(); }
    void GetSelectedFeatures(GenApi::FeatureList_t &features) const override;
    void GetSelectingFeatures(GenApi::FeatureList_t &features) const override;

protected:
    /// The access mode before it is restricted by `ImposeAccessMode`. Called with the lock held;
    /// the result is cached when `accessIsCachable()`.
    virtual GenApi::EAccessMode readAccessMode() const = 0;

    /// The same before a lock against writing is applied.
    virtual GenApi::EAccessMode readUnlockedAccessMode() const { return readAccessMode(); }
    virtual bool accessIsCachable() const { return true; }
    virtual bool valueIsCachable() const { return IsCachable(); }
    virtual bool limitsAreCachable() const { return true; }

    /// The neighbours other than those of the dependency graph.
    virtual void collectChildren(std::vector<Node *> &children, GenApi::ELinkType linkType) const;

    /// The lock against writing may be missing, too, so the value is looked up together with it.
    void requireReadable() const;
    void requireWritable() const;

    /// Runs a check and a write under the lock, which is released during the transfer, drops the
    /// caches that depend on it and calls the callbacks. A failed write may have changed some
    /// registers: the caches are dropped, too, but no callback is called.
    template<typename Check, typename Write>
    void write(Check check, Write write);

private:
    friend class NodeMapBase;

    bool isReadable() const;
    void abandonWrite(bool mayHaveWritten);
    void finishWrite();

    NodeMapBase &m_map;
    NodeProperties m_properties;
    std::size_t m_index = 0; ///< index in the node map
    bool m_isFeature = false;
    bool m_isPollWanted = false;
    bool m_isToBeNotified = false; ///< it is in the map's list of changed nodes
    GenApi::EAccessMode m_imposedAccess = GenApi::RW;
    GenApi::EVisibility m_imposedVisibility = GenApi::Beginner;
    int64_t m_sincePolled = 0; ///< ms
    std::vector<Node *> m_dependents;
    std::vector<Node *> m_sources;
    std::vector<Node *> m_selected;
    std::vector<Node *> m_selecting;
    mutable Cached<GenApi::EAccessMode> m_access;
    mutable bool m_accessBeingRead = false;
    CallbackList m_callbacks;
};

/// The more restrictive of two access modes.
GenApi::EAccessMode combinedAccessMode(GenApi::EAccessMode left, GenApi::EAccessMode right);

} // namespace OrvGenApi
