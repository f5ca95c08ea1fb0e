// SPDX-License-Identifier: MIT
#include "selector/devicetreenode.h"

#include "selector/devicetreemodel.h"

#include <OrvCam.h>

#include <algorithm>

namespace {

const quint32 AllInterfaces = 255;
constexpr quint32 discoveryTime = 200; // milliseconds

} // namespace

DeviceTreeNode::DeviceTreeNode(DeviceTreeModel &model, DeviceTreeNode *parent)
    : m_model(model), m_parent(parent)
{
}

DeviceTreeNode::~DeviceTreeNode() = default;

DeviceTreeNode *DeviceTreeNode::child(int row) const
{
    return row >= 0 && row < childCount() ? m_children[static_cast<std::size_t>(row)].get()
                                          : nullptr;
}

int DeviceTreeNode::row() const
{
    if (!m_parent)
        return 0;
    const auto &siblings = m_parent->m_children;
    const auto self = std::find_if(siblings.begin(), siblings.end(),
                                   [this](const auto &sibling) { return sibling.get() == this; });
    return self == siblings.end() ? 0 : static_cast<int>(self - siblings.begin());
}

template<class Child, class List>
void DeviceTreeNode::append(List &list)
{
    const int first = childCount();
    const int count = static_cast<int>(list.GetCount());
    m_model.beginInsertRows(m_model.index(this), first, first + count - 1);
    for (auto *entry = list.GetFirst(); entry; entry = list.GetNext())
        m_children.push_back(std::make_unique<Child>(m_model, this, entry));
    m_model.endInsertRows();
}

RootNode::RootNode(DeviceTreeModel &model, OrvCam::System *system)
    : DeviceTreeNode(model, nullptr), m_system(system)
{
}

QVariant RootNode::data(int column, int role) const
{
    if (column == 0 && role == Qt::DisplayRole)
        return DeviceTreeModel::tr("Name");
    return QVariant();
}

void RootNode::fetchMore()
{
    if (!m_system)
        return;
    const OrvCam::Released<OrvCam::InterfaceList> list(m_system->GetInterfaceSet(AllInterfaces));
    if (list && list->GetCount() != 0)
        append<InterfaceNode>(*list);
}

InterfaceNode::InterfaceNode(DeviceTreeModel &model, DeviceTreeNode *parent,
                             OrvCam::Interface *interface)
    : DeviceTreeNode(model, parent), m_interface(interface)
{
}

QVariant InterfaceNode::data(int column, int role) const
{
    if (column != 0)
        return QVariant();
    if (role == Qt::DisplayRole)
        return QString::fromUtf8(m_interface->GetDescription());
    return role == Qt::UserRole ? QVariant::fromValue(m_interface) : QVariant();
}

void InterfaceNode::fetchMore()
{
    m_interface->RefreshDevices(nullptr, discoveryTime);
    OrvCam::Released<OrvCam::DeviceInfoList> list(m_interface->GetDeviceInfoSet());
    if (list && list->GetCount() != 0)
        append<DeviceInfoNode>(*list);
    else
        list.release(); // the camera system owns an empty list, unlike an empty list of interfaces
}

DeviceInfoNode::DeviceInfoNode(DeviceTreeModel &model, DeviceTreeNode *parent,
                               OrvCam::DeviceInfo *info)
    : DeviceTreeNode(model, parent), m_info(info)
{
}

QVariant DeviceInfoNode::data(int column, int role) const
{
    if (column != 0)
        return QVariant();
    if (role == Qt::DisplayRole)
        return QString::fromUtf8(m_info->GetDisplayName());
    return role == Qt::UserRole ? QVariant::fromValue(m_info) : QVariant();
}
