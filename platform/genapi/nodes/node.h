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

/// What the description of a node says once and for all.
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

/// Base of every node: identity, access mode, place in the dependency graph and callbacks. The
/// classes derived from it implement the value interfaces with their checks and caches; where a
/// value comes from is left to the classes derived from those.
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

    /// Forgets what is cached of this node alone.
    virtual void dropCache();

    /// Forgets what the node keeps of the camera's memory. For registers; nothing otherwise.
    virtual void dropRegister() {}

    /// Has the node, and what its value comes from, polled although the value is not read: a
    /// client waits for its changes.
    void keepPolled();

    /// Whether that was called since the last call of this one.
    bool takePollWanted() { return std::exchange(m_isPollWanted, false); }

    /// The nodes whose contents change when this one is written, this one first.
    virtual std::vector<Node *> writtenNodes() { return {this}; }

    /// The nodes that must be forgotten for the next read to ask the camera, this one first.
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
    /// The access mode before what was imposed. Called with the lock held; the result is cached
    /// when `accessIsCachable()`.
    virtual GenApi::EAccessMode readAccessMode() const = 0;

    /// The same before it is known whether the node is locked against writing.
    virtual GenApi::EAccessMode readUnlockedAccessMode() const { return readAccessMode(); }
    virtual bool accessIsCachable() const { return true; }
    virtual bool valueIsCachable() const { return IsCachable(); }
    virtual bool limitsAreCachable() const { return true; }

    /// The neighbours other than those that the dependency graph knows.
    virtual void collectChildren(std::vector<Node *> &children, GenApi::ELinkType linkType) const;

    /// A lock against writing may still be unknown, so that the value is looked up together with
    /// it.
    void requireReadable() const;
    void requireWritable() const;

    /// Runs a check and a write under the lock, which is released while the camera is talked to,
    /// forgets what the write has changed and calls the callbacks. A write that fails may have got
    /// through in part: everything is forgotten too, but no callback is called.
    template<typename Check, typename Write>
    void write(Check check, Write write);

private:
    friend class NodeMapBase;

    bool isReadable() const;
    void abandonWrite(bool mayHaveWritten);
    void finishWrite();

    NodeMapBase &m_map;
    NodeProperties m_properties;
    std::size_t m_index = 0; ///< position in the node map
    bool m_isFeature = false;
    bool m_isPollWanted = false;
    bool m_isToBeNotified = false; ///< is in the map's list
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

/// The narrower of two access modes.
GenApi::EAccessMode combinedAccessMode(GenApi::EAccessMode left, GenApi::EAccessMode right);

} // namespace OrvGenApi
