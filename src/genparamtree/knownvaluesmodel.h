// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/genparamtreevisibilityfilterproxymodel.h"

#include <GenApi/IValue.h>

#include <QCache>

namespace OrvGui {

class TreeLookAhead;

/// The feature tree as its view shows it: with what is known of the values, so that no view,
/// delegate or assistive technology ever waits for the camera.
///
/// While a new value is on its way, a cell has its last text; one that has had none yet has "…" in
/// the disabled colour. To edit there is nothing but what is known. A cell whose access mode is not
/// known counts as editable, but there is no editor before it is.
///
/// Without a look-ahead it answers everything, and waits.
class KnownValuesModel : public GenParamTreeVisibilityFilterProxyModel
{
    Q_OBJECT

public:
    using GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel;

    /// Null for none.
    void setLookAhead(TreeLookAhead *lookAhead) { m_lookAhead = lookAhead; }
    TreeLookAhead *lookAhead() const { return m_lookAhead; }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    void refilter() override;

private:
    struct Cell
    {
        QVariant text;
        QVariant foreground;
        Qt::ItemFlags flags;
    };

    Cell cell(const QModelIndex &source) const;
    bool isEachIndexFoundAgain() const;
    void dropIndexesInHiddenCategories();

    TreeLookAhead *m_lookAhead = nullptr;
    mutable QCache<const GenApi::IValue *, Cell> m_lastCells{1000};
};

} // namespace OrvGui
