// SPDX-License-Identifier: MIT
#include "genparamtreevisibilityfilterproxymodel.h"

#include "genparamtreemodel.h"

#include <Base/GCException.h>
#include <GenApi/INode.h>

GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int _visibility)
{
    m_filterVisibility = _visibility;
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
