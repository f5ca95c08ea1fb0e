// SPDX-License-Identifier: MIT
#pragma once

#include "selector/devicetreenode.h"

#include <QAbstractItemModel>

/// Presents a camera system as a tree: the interfaces, and below each the cameras found on it.
///
/// Use it with a tree view. Nothing is asked of the system before the view expands the root, and
/// nothing of an interface before the view expands it; looking for cameras then blocks for up to
/// 200 ms. What was found stays as it is until `rescan`; where nothing was found, every further
/// expansion looks again. `Qt::UserRole` of a row is its `OrvCam::Interface *` or
/// `OrvCam::DeviceInfo *`.
///
/// The system must outlive the model. GUI thread only.
class DeviceTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// A null system gives an empty tree.
    explicit DeviceTreeModel(OrvCam::System *system, QObject *parent = nullptr);
    ~DeviceTreeModel() override;

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex index(DeviceTreeNode *node) const;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Forgets the whole tree; what the view expands from now on is queried again.
    void rescan();

private:
    friend class DeviceTreeNode; // reports its new rows

    DeviceTreeNode &node(const QModelIndex &index) const;

    OrvCam::System *const m_system;
    std::unique_ptr<RootNode> m_root;
};
