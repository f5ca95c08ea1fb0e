// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>

/// Hides the features of a `GenParamTreeModel` whose visibility is above a level.
///
/// Set the tree model as its source model. Only a category's own visibility counts: a hidden
/// category hides all rows below it, and a category whose features are all hidden stays without
/// rows. Rows without a feature are shown.
class GenParamTreeVisibilityFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit GenParamTreeVisibilityFilterProxyModel(QObject *parent = nullptr);

    /// The highest `GenApi::EVisibility` shown: 0 Beginner (the default), 1 Expert, 2 Guru.
    int filterVisibility() const { return m_filterVisibility; }

    /// Whether the row is shown at that level.
    static bool isShownAt(int visibility, const QModelIndex &index);

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

public slots:
    void setFilterVisibility(int _visibility);

protected:
    /// Filters all rows again.
    virtual void refilter();

private:
    int m_filterVisibility = 0;
};
