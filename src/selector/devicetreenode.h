// SPDX-License-Identifier: MIT
#pragma once

#include <OrvCam/DeviceInfo.h>
#include <OrvCam/Interface.h>

#include <QVariant>

#include <memory>
#include <vector>

namespace OrvCam {
class System;
}

class DeviceTreeModel;

Q_DECLARE_METATYPE(OrvCam::Interface *)
Q_DECLARE_METATYPE(OrvCam::DeviceInfo *)

/// A row of the device tree. It owns the rows below it and represents an object of the camera
/// system, which it does not own.
///
/// A node without children counts as not fetched, so that an interface without cameras is searched
/// again.
class DeviceTreeNode
{
public:
    DeviceTreeNode(DeviceTreeModel &model, DeviceTreeNode *parent);
    virtual ~DeviceTreeNode();
    DeviceTreeNode(const DeviceTreeNode &) = delete;
    DeviceTreeNode &operator=(const DeviceTreeNode &) = delete;

    virtual QVariant data(int column, int role) const = 0;
    virtual bool hasChildren() const { return true; }
    virtual bool canFetchMore() const { return m_children.empty(); }

    /// Queries the camera system for the children, and notifies the model of new ones.
    virtual void fetchMore() {}

    /// Null for the root.
    DeviceTreeNode *parent() const { return m_parent; }

    int childCount() const { return static_cast<int>(m_children.size()); }

    /// Null when there is no such row.
    DeviceTreeNode *child(int row) const;

    /// The index among the children of its parent; 0 for the root.
    int row() const;

protected:
    /// Creates a child for each entry of a list. There may be fewer entries than the list's count.
    template<class Child, class List>
    void append(List &list);

private:
    DeviceTreeModel &m_model;
    DeviceTreeNode *const m_parent;
    std::vector<std::unique_ptr<DeviceTreeNode>> m_children;
};

/// The camera system; its children are the interfaces.
class RootNode final : public DeviceTreeNode
{
public:
    /// There are no interfaces without a system.
    RootNode(DeviceTreeModel &model, OrvCam::System *system);

    QVariant data(int column, int role) const override;
    void fetchMore() override;

private:
    OrvCam::System *const m_system;
};

/// An interface; its children are the cameras found on it.
class InterfaceNode final : public DeviceTreeNode
{
public:
    InterfaceNode(DeviceTreeModel &model, DeviceTreeNode *parent, OrvCam::Interface *interface);

    QVariant data(int column, int role) const override;
    void fetchMore() override;

private:
    OrvCam::Interface *const m_interface;
};

/// A camera.
class DeviceInfoNode final : public DeviceTreeNode
{
public:
    DeviceInfoNode(DeviceTreeModel &model, DeviceTreeNode *parent, OrvCam::DeviceInfo *info);

    QVariant data(int column, int role) const override;
    bool hasChildren() const override { return false; }
    bool canFetchMore() const override { return false; }

private:
    OrvCam::DeviceInfo *const m_info;
};
