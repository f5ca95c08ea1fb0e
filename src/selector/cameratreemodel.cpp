// SPDX-License-Identifier: MIT
#include "selector/cameratreemodel.h"

CameraTreeModel::CameraTreeModel(OrvCam::System *system, QObject *parent)
    : DeviceTreeModel(system, parent)
{
    connect(this, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_expanded.clear(); });
}

bool CameraTreeModel::canFetchMore(const QModelIndex &parent) const
{
    return !m_isPaused && !m_expanded.contains(parent.internalPointer()) &&
           DeviceTreeModel::canFetchMore(parent);
}

void CameraTreeModel::fetchMore(const QModelIndex &parent)
{
    if (!canFetchMore(parent))
        return;
    DeviceTreeModel::fetchMore(parent);
    if (parent.isValid())
        m_expanded.insert(parent.internalPointer());
}

void CameraTreeModel::collapsed(const QModelIndex &interface)
{
    m_expanded.remove(interface.internalPointer());
}
