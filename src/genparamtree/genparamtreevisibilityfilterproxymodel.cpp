// SPDX-License-Identifier: MIT
#include "genparamtree/genparamtreevisibilityfilterproxymodel.h"

#include "base/featuremetatype.h"
#include "genparamtree/genparamtreemodel.h"

#include <Base/GCException.h>
#include <GenApi/INode.h>

GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int _visibility)
{
    m_filterVisibility = _visibility;
    refilter();
}

void GenParamTreeVisibilityFilterProxyModel::refilter()
{
    invalidateFilter();
}

bool GenParamTreeVisibilityFilterProxyModel::filterAcceptsRow(int sourceRow,
                                                              const QModelIndex &sourceParent) const
{
    return isShownAt(m_filterVisibility, sourceModel()->index(sourceRow, 0, sourceParent));
}

bool GenParamTreeVisibilityFilterProxyModel::isShownAt(int visibility, const QModelIndex &index)
{
    auto *value = featureOf(index);
    try {
        return !value || value->GetNode()->GetVisibility() <= visibility;
    } catch (const GenICam::GenericException &) {
        return true; // an exception would leave Qt's proxy half filtered
    }
}
