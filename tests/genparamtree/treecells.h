// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/genparamtreemodel.h"

#include <GenApi/GenApi.h>

/// A cell of the first row, depth first, that shows the feature of that name; invalid if there is
/// none.
inline QModelIndex cellOf(const QAbstractItemModel &model, const QString &feature, int column,
                          const QModelIndex &parent = QModelIndex())
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        auto *value = index.data(Qt::UserRole).value<GenApi::IValue *>();
        if (value && feature == value->GetNode()->GetName().c_str())
            return model.index(row, column, parent);
        const QModelIndex below = cellOf(model, feature, column, index);
        if (below.isValid())
            return below;
    }
    return QModelIndex();
}

inline QModelIndex valueCell(const QAbstractItemModel &model, const QString &feature)
{
    return cellOf(model, feature, 1);
}
