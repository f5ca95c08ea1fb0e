// SPDX-License-Identifier: MIT
#include "base/treeviewmodel.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTreeView>

namespace {

void deleteUnused(const QTreeView *view, const QObject *parent)
{
    for (auto *selection :
         parent->findChildren<QItemSelectionModel *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (selection != view->selectionModel() && selection != view->header()->selectionModel())
            delete selection;
    }
}

} // namespace

void setTreeViewModel(QTreeView *view, QAbstractItemModel *model)
{
    view->setModel(model);
    deleteUnused(view, view);
    deleteUnused(view, view->header());
}
