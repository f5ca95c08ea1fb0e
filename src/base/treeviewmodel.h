// SPDX-License-Identifier: MIT
#pragma once

class QAbstractItemModel;
class QTreeView;

/// Sets the model of the view, null for none, and deletes the selection models of the former one.
///
/// With every model, even with none, Qt makes selection models for the view and for its header, and
/// keeps those that it no longer uses.
void setTreeViewModel(QTreeView *view, QAbstractItemModel *model);
