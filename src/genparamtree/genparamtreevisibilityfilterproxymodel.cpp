// SPDX-License-Identifier: MIT
#include "genparamtreevisibilityfilterproxymodel.h"

#include "genparamtreemodel.h"

#include <Base/GCException.h>
#include <GenApi/INode.h>

#include <memory>

GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int _visibility)
{
    m_filterVisibility = _visibility;
    // Each range of rows that goes makes Qt ask for the parents of all expanded rows.
    std::unique_ptr<GenParamTreeModel::ParentTable> parents;
    if (const auto *model = qobject_cast<GenParamTreeModel *>(sourceModel()))
        parents.reset(new GenParamTreeModel::ParentTable(*model));
    invalidateFilter();
}

bool GenParamTreeVisibilityFilterProxyModel::filterAcceptsRow(int sourceRow,
                                                              const QModelIndex &sourceParent) const
{
    const QModelIndex source = sourceModel()->index(sourceRow, 0, sourceParent);
    auto *value = source.data(Qt::UserRole).value<GenApi::IValue *>();
    try {
        return !value || value->GetNode()->GetVisibility() <= m_filterVisibility;
    } catch (const GenICam::GenericException &) {
        return true; // Qt's proxy would be left half filtered
    }
}
