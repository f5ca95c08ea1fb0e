// SPDX-License-Identifier: MIT
#include "featurenamedelegate.h"

#include "featurecell.h"

namespace OrvGui {

void FeatureNameDelegate::initStyleOption(QStyleOptionViewItem *option,
                                          const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    styleFeatureCell(option, index);
}

} // namespace OrvGui
