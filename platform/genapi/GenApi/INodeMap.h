// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Container.h>
#include <GenApi/Synch.h>

namespace GenApi_3_0 {

struct INode;

/// All nodes of one camera or of one interface. Every call of a node takes the map's lock.
struct GENAPI_DECL INodeMap
{
    virtual ~INodeMap() = default;

    /// All nodes, in the order of the description. Appends to `Nodes`.
    virtual void GetNodes(NodeList_t &Nodes) const = 0;

    /// The node of that name ("Name", "Std::Name" or "Cust::Name"), or null.
    virtual INode *GetNode(const GenICam::gcstring &Name) const = 0;

    /// Clears the caches of all nodes. Calls no callback.
    virtual void InvalidateNodes() const = 0;
    virtual GenICam::gcstring GetDeviceName() = 0;

    /// Advances the polling time by `ElapsedTime` milliseconds: nodes whose polling time has
    /// expired are invalidated and their callbacks called.
    virtual void Poll(int64_t ElapsedTime) = 0;
    virtual CLock &GetLock() const = 0;
    virtual uint64_t GetNumNodes() const = 0;
};

} // namespace GenApi_3_0
