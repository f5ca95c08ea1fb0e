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

    QString displayText(const QVariant &value, const QLocale &locale) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace OrvGui
