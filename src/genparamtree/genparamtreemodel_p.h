// SPDX-License-Identifier: MIT
#pragma once

#include "acyclicfeatures.h"
#include "genparamtreemodel.h"

#include <GenApi/GenApi.h>

#include <unordered_map>
#include <vector>

/// Private part of `GenParamTreeModel`, and the client of its node callbacks.
class GenParamTreeModelPrivate
{
public:
    /// Registers a callback for every feature of the tree, once per place where it is listed.
    void Init(GenParamTreeModel *model);

    /// Null when the index stands for no category.
    GenApi::CCategoryPtr CategoryFromIndex(const QModelIndex &index) const;

    /// Null when the index stands for no feature.
    static GenApi::IValue *valueFromIndex(const QModelIndex &index);

    void RegisterCallbackForChildren(const GenApi::CCategoryPtr &category);
    void DeRegisterCallbacks();
    void NodeCallback(GenApi::INode *node);

    /// The cell of the feature's first occurrence below `parent`, depth first; column -1 asks for
    /// the parent of that row instead.
    QModelIndex findIndexByValueClass(const GenApi::IValue *value, int column,
                                      const QModelIndex &parent) const;

    /// The parent index of a feature's first occurrence.
    QModelIndex parentOf(const GenApi::IValue *value) const;

    /// Notes where everything in a category has its parent, first occurrences first.
    void fillParents(const GenApi::ICategory &category, GenApi::IValue *parent, int parentRow);

    QVariant nameData(const QModelIndex &index, GenApi::INode *node, int role) const;
    static QVariant valueData(GenApi::IValue *value, int role);

    /// The description of a feature in rich text.
    QVariant WhatsThis(GenApi::IValue *value) const;

    /// False for a kind of feature that cannot be written.
    static bool write(GenApi::IValue *value, const QVariant &data);

    /// A category with its own row; null for the root.
    struct Parent
    {
        GenApi::IValue *value;
        int row;
    };

    GenParamTreeModel *q = nullptr;
    GenApi::INodeMap *nodeMap = nullptr;
    AcyclicFeatures features;
    std::vector<GenApi::CallbackHandleType> callbackHandles;
    std::unordered_map<const GenApi::IValue *, Parent> parents; ///< empty but for a `ParentTable`
};
