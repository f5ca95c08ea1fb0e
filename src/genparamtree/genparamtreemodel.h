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
/// `setData`. The top-level rows are the features of the category "Root"; without one, or without a
/// node map, the model is empty.
///
/// The model stores no copy of the tree and queries the node map each time; only the list of a
/// category with more than 500 features may be as old as the last `rowCount` or the last iteration
/// of the event loop. A feature in several categories has a row in each, but `parent` and change
/// notifications refer to the first of them in depth-first order. Features that are added to the
/// tree after the model was created are shown but not observed.
///
/// The node map must outlive the model. Use the model on the GUI thread; `dataChanged` is emitted
/// on the thread that changed the node.
class GenParamTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    explicit GenParamTreeModel(GenApi::INodeMap *nodeMap, QObject *parent = nullptr);

    /// Uses the node map of the array.
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

    /// Writes a value in GenICam's format, or executes a command, and reports it as `setData` does.
    /// Returns an empty text on success, otherwise the reason for the refusal. The notification of
    /// the feature updates the cells.
    QString writeText(GenApi::IValue *feature, const QString &text);

    /// The value in GenICam's format; null when it cannot be read, and for a command. Blocks only
    /// when the value is not cached.
    QString text(GenApi::IValue *feature) const;

    /// The same without blocking; also null for a value that is not cached.
    QString knownText(GenApi::IValue *feature) const;

signals:
    /// A write by this model begins. The value is cached by now, if it can be read at all.
    void aboutToWrite(GenApi::IValue *feature);

    /// A write by this model has succeeded; the texts are those of `text` before and after it.
    /// While this signal is connected, values that are not cached are read around each write.
    void written(GenApi::IValue *feature, const QString &before, const QString &after);

    /// A write by this model was refused.
    void refused(GenApi::IValue *feature, const QString &reason);

private:
    friend class GenParamTreeModelPrivate;

    QScopedPointer<GenParamTreeModelPrivate> d;
};
