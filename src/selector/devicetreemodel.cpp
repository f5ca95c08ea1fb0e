// SPDX-License-Identifier: MIT
#include "selector/devicetreemodel.h"

DeviceTreeModel::DeviceTreeModel(OrvCam::System *system, QObject *parent)
    : QAbstractItemModel(parent)
    , m_system(system)
    , m_root(std::make_unique<RootNode>(*this, system))
{
    qRegisterMetaType<OrvCam::Interface *>("OrvCam::Interface*");
    qRegisterMetaType<OrvCam::DeviceInfo *>("OrvCam::DeviceInfo*");
}

DeviceTreeModel::~DeviceTreeModel() = default;

DeviceTreeNode &DeviceTreeModel::node(const QModelIndex &index) const
{
    return index.isValid() ? *static_cast<DeviceTreeNode *>(index.internalPointer()) : *m_root;
}

QModelIndex DeviceTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    DeviceTreeNode *child = node(parent).child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex DeviceTreeModel::index(DeviceTreeNode *node) const
{
    return node->parent() ? createIndex(node->row(), 0, node) : QModelIndex();
}

QModelIndex DeviceTreeModel::parent(const QModelIndex &index) const
{
    return index.isValid() ? this->index(node(index).parent()) : QModelIndex();
}

int DeviceTreeModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : node(parent).childCount();
}

int DeviceTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant DeviceTreeModel::data(const QModelIndex &index, int role) const
{
    return index.isValid() ? node(index).data(index.column(), role) : QVariant();
}

QVariant DeviceTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return m_root->data(section, Qt::DisplayRole);
}

bool DeviceTreeModel::hasChildren(const QModelIndex &parent) const
{
    return node(parent).hasChildren();
}

bool DeviceTreeModel::canFetchMore(const QModelIndex &parent) const
{
    return node(parent).canFetchMore();
}

void DeviceTreeModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        node(parent).fetchMore();
}

Qt::ItemFlags DeviceTreeModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? QAbstractItemModel::flags(index) : Qt::NoItemFlags;
}

void DeviceTreeModel::rescan()
{
    beginResetModel();
    m_root = std::make_unique<RootNode>(*this, m_system);
    endResetModel();
}
