// SPDX-License-Identifier: MIT
#pragma once

#include "base/featuremetatype.h"

#include <GenApi/INodeMap.h>

#include <QAbstractItemModel>
#include <QScopedPointer>

namespace OrvGenParam {
class Array;
}

class GenParamTreeModelPrivate;

/// Presents the feature tree of a node map: categories are branches, features are leaves, column 0
/// is the feature's name and column 1 its value.
///
/// Use it with any item view; `Qt::UserRole` of a cell is the row's `GenApi::IValue *`, and
/// `Qt::WhatsThisRole` a description of the feature in rich text. Values are edited through
/// `setData`. The tree hangs from the category "Root"; without one, or without a node map, the
/// model is empty.
///
/// The model keeps no copy of the tree, it asks the node map every time; only the list of a
/// category of more than 500 features may be as old as the last `rowCount` or the last turn of the
/// event loop. A feature that several categories list has a row in each, but `parent` and change
/// notifications know only the first of them in depth-first order. Features that join the tree
/// after the model was made are shown but not watched.
///
/// The node map must outlive the model. The model belongs to the GUI thread; `dataChanged` is
/// emitted on the thread that changed the node.
class GenParamTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit GenParamTreeModel(GenApi::INodeMap *nodeMap, QObject *parent = nullptr);

    /// Works on the node map that the array comes from.
    explicit GenParamTreeModel(OrvGenParam::Array *array, QObject *parent = nullptr);
    ~GenParamTreeModel() override;

    QModelIndex index(int row, int column,
                      const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Writes a value to the camera, or executes a command. False when the feature cannot be
    /// written or the camera refuses; the feature then keeps its value.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// Writes a value as GenICam's text, or executes a command, and reports it as `setData` does.
    /// Empty on success, otherwise the reason for the refusal. The notification of the feature
    /// updates the cells.
    QString writeText(GenApi::IValue *feature, const QString &text);

    /// The value as GenICam's text; null when it cannot be read, and for a command. Waits for the
    /// camera only when the value is not known.
    QString text(GenApi::IValue *feature) const;

    /// The same without waiting; null also for a value that is not known.
    QString knownText(GenApi::IValue *feature) const;

signals:
    /// A write of this model begins. The value is known by now, if it can be read at all.
    void aboutToWrite(GenApi::IValue *feature);

    /// A write of this model has succeeded; the texts are those of `text`, before it and after it.
    /// A connection has the value read around each write when it is not known.
    void written(GenApi::IValue *feature, const QString &before, const QString &after);

    /// A write of this model was refused.
    void refused(GenApi::IValue *feature, const QString &reason);

private:
    friend class GenParamTreeModelPrivate;

    QScopedPointer<GenParamTreeModelPrivate> d;
};
