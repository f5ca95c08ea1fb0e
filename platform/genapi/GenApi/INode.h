// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/Container.h>
#include <GenApi/IBase.h>

namespace GenApi_3_0 {

struct INodeMap;
class CNodeCallback;

/// The common interface of all nodes. A client gets the value interface by `dynamic_cast`.
struct GENAPI_DECL INode : virtual public IBase
{
    /// The name by which the node map finds the node; `FullQualified` puts the name space
    /// ("Std::" or "Cust::") in front.
    virtual GenICam::gcstring GetName(bool FullQualified = false) const = 0;
    virtual ENameSpace GetNameSpace() const = 0;
    virtual EVisibility GetVisibility() const = 0;

    /// Clears the caches of the node, of the registers that it reads and of all nodes that depend
    /// on them. Calls no callback.
    virtual void InvalidateNode() = 0;
    virtual bool IsCachable() const = 0;
    virtual ECachingMode GetCachingMode() const = 0;

    /// Milliseconds after which `INodeMap::Poll` invalidates the node; -1 when it has none.
    virtual int64_t GetPollingTime() const = 0;
    virtual GenICam::gcstring GetToolTip() const = 0;
    virtual GenICam::gcstring GetDescription() const = 0;

    /// The name to display; empty when the description gives none.
    virtual GenICam::gcstring GetDisplayName() const = 0;
    virtual GenICam::gcstring GetDeviceName() const = 0;
    virtual void GetChildren(NodeList_t &Children,
                             ELinkType LinkType = ctReadingChildren) const = 0;
    virtual void GetParents(NodeList_t &Parents) const = 0;

    /// Takes ownership of the callback. The handle stays valid until it is deregistered.
    virtual CallbackHandleType RegisterCallback(CNodeCallback *pCallback) = 0;

    /// Destroys the callback; false for an unknown handle. Safe from inside a callback. A callback
    /// that runs on another thread has returned before this does, unless the caller holds the
    /// node map's lock.
    virtual bool DeregisterCallback(CallbackHandleType hCallback) = 0;
    virtual INodeMap *GetNodeMap() const = 0;
    virtual GenICam::gcstring GetEventID() const = 0;
    virtual bool IsStreamable() const = 0;
    virtual bool IsDeprecated() const = 0;
    virtual EInterfaceType GetPrincipalInterfaceType() const = 0;

    /// True when some category lists the node.
    virtual bool IsFeature() const = 0;

    /// Restricts the access mode further than the camera does.
    virtual void ImposeAccessMode(EAccessMode ImposedAccessMode) = 0;

    /// Restricts the visibility further than the description does.
    virtual void ImposeVisibility(EVisibility ImposedVisibility) = 0;
};

} // namespace GenApi_3_0
