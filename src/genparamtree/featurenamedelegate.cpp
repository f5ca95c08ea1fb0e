// SPDX-License-Identifier: MIT
#include "genparamtree/featurenamedelegate.h"

#include "base/cameratext.h"
#include "genparamtree/featurecell.h"

namespace OrvGui {

QString FeatureNameDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    Q_UNUSED(locale)
    return cameraText(value.toString());
}

void FeatureNameDelegate::initStyleOption(QStyleOptionViewItem *option,
                                          const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    styleFeatureCell(option, index);
}

} // namespace OrvGui
