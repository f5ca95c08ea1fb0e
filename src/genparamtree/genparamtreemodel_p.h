// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/featureplaces.h"
#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <functional>
#include <vector>

/// Private part of `GenParamTreeModel`; handles its node callbacks.
class GenParamTreeModelPrivate
{
public:
    /// Registers a callback for each feature of the tree, once per row.
    void Init(GenParamTreeModel *model);

    /// Null when the index does not belong to a category.
    GenApi::CCategoryPtr CategoryFromIndex(const QModelIndex &index) const;

    /// Null when the index does not belong to a feature.
    static GenApi::IValue *valueFromIndex(const QModelIndex &index);

    void RegisterCallbackForChildren(const GenApi::CCategoryPtr &category);
    void DeRegisterCallbacks();
    void NodeCallback(GenApi::INode *node);

    /// The cell of the feature's first occurrence, depth first; column -1 returns the parent of
    /// that row instead.
    QModelIndex findIndexByValueClass(const GenApi::IValue *value, int column) const;

    QVariant nameData(const QModelIndex &index, GenApi::INode *node, int role) const;
    static QVariant valueData(GenApi::IValue *value, int role);

    /// The description of a feature in rich text.
    QVariant WhatsThis(GenApi::IValue *value) const;

    /// False for a kind of feature that cannot be written.
    static bool write(GenApi::IValue *value, const QVariant &data);

    enum Outcome { Written, Refused, NotWritable };

    /// Runs a write, which returns false for a feature that cannot be written at all. When the
    /// write is observed, reports it with the texts or the reason.
    Outcome carryOut(GenApi::IValue *feature, const std::function<bool()> &write,
                     QString *reason = nullptr);
    bool isObserved() const;
    QString text(GenApi::IValue *feature, bool mayWait) const;

    GenParamTreeModel *q = nullptr;
    GenApi::INodeMap *nodeMap = nullptr;
    mutable FeaturePlaces places;
    std::vector<GenApi::CallbackHandleType> callbackHandles;
};
