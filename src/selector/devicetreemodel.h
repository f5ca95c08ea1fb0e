// SPDX-License-Identifier: MIT
#pragma once

#include "selector/devicetreenode.h"

#include <QAbstractItemModel>

/// Presents a camera system as a tree: the interfaces, and below each the cameras found on it.
///
/// Use it with a tree view. The system is not queried before the view expands the root, an
/// interface not before the view expands it; the search for cameras then blocks for up to 200 ms.
/// Cameras that were found stay in the model until `rescan`; where none was found, each further
/// expansion searches again. `Qt::UserRole` of a row is its `OrvCam::Interface *` or
/// `OrvCam::DeviceInfo *`.
///
/// The system must outlive the model. Use the model on the GUI thread only.
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

    /// Clears the whole tree; rows that the view expands afterwards are queried again.
    void rescan();

private:
    friend class DeviceTreeNode; // reports its new rows

    DeviceTreeNode &node(const QModelIndex &index) const;

    OrvCam::System *const m_system;
    std::unique_ptr<RootNode> m_root;
};
