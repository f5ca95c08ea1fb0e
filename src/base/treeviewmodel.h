// SPDX-License-Identifier: MIT
#pragma once

class QAbstractItemModel;
class QTreeView;

/// Sets the model of the view, null for none, and deletes the selection models of the previous one.
///
/// Qt creates selection models for the view and its header with each model, even for null, and does
/// not delete those that are no longer used.
void setTreeViewModel(QTreeView *view, QAbstractItemModel *model);
