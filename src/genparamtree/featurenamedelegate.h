// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace OrvGui {

/// Paints the name column of the tree.
class FeatureNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace OrvGui
