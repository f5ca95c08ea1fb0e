// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>

/// Hides the features of a `GenParamTreeModel` whose visibility is above a level.
///
/// Set the tree model as its source model. A category is judged by its own visibility alone: one
/// that is hidden hides all below it, one whose features are all hidden stays as an empty branch.
/// Rows without a feature are shown.
class GenParamTreeVisibilityFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit GenParamTreeVisibilityFilterProxyModel(QObject *parent = nullptr);

    /// The highest `GenApi::EVisibility` shown: 0 Beginner (the default), 1 Expert, 2 Guru.
    int filterVisibility() const { return m_filterVisibility; }

    /// What the row of that index is judged by, at any level.
    static bool isShownAt(int visibility, const QModelIndex &index);

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

public slots:
    void setFilterVisibility(int _visibility);

protected:
    /// Has all rows judged anew.
    virtual void refilter();

private:
    int m_filterVisibility = 0;
};
