// SPDX-License-Identifier: MIT
#include "featurenamedelegate.h"

#include "featurecell.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace OrvGui {

// Qt would lay out a tool tip that looks like markup, and open the pictures that it names.
bool FeatureNameDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!event || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::ToolTipRole).toString();
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal),
                           view);
    return true;
}

void FeatureNameDelegate::initStyleOption(QStyleOptionViewItem *option,
                                          const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    styleFeatureCell(option, index);
}

} // namespace OrvGui
