// SPDX-License-Identifier: MIT
#pragma once

#include "genparamtree/genparamtreevisibilityfilterproxymodel.h"

#include <GenApi/IValue.h>

#include <QCache>

namespace OrvGui {

class TreeLookAhead;

/// The feature tree with cached values only, so that no view, delegate or assistive technology ever
/// blocks for the camera.
///
/// While a value is being read, a cell shows its last text, or "…" in the disabled colour if there
/// is none. `Qt::EditRole` gives cached values only. A cell whose access mode is not cached counts
/// as editable, but gets no editor until it is.
///
/// Without a look-ahead the model blocks for each value.
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
