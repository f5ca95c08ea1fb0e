// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace OrvGui {

/// Paints the name column of the tree, and shows the tool tips of the camera literally.
class FeatureNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace OrvGui
