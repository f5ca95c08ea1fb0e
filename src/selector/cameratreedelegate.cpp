// SPDX-License-Identifier: MIT
#include "selector/cameratreedelegate.h"

#include "base/cameratext.h"
#include "selector/devicetreenode.h"

#include <OrvCam.h>

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

QString CameraTreeDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return OrvGui::cameraText(value.toString());
}

QString CameraTreeDelegate::reason(const QModelIndex &index)
{
    const auto *camera = index.data(Qt::UserRole).value<OrvCam::DeviceInfo *>();
    switch (camera ? camera->GetAccessState() : OrvCam::AccessUnknown) {
    case OrvCam::AccessNone:
        return tr("This camera cannot be opened: it is in use, or access to it is denied.");
    case OrvCam::AccessSubnetMismatch:
        return tr("This camera cannot be opened: its IP address is not in the subnet of the "
                  "network adapter.");
    default:
        return QString();
    }
}

bool CameraTreeDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (!event || !view || event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // Rich text is wrapped.
    QToolTip::showText(event->globalPos(), OrvGui::literally(reason(index)), view->viewport(),
                       option.rect);
    return true;
}

void CameraTreeDelegate::initStyleOption(QStyleOptionViewItem *option,
                                         const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!option->widget || reason(index).isEmpty())
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->icon = option->widget->style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr,
                                                         option->widget);
    // The mark must not make the row higher than the others.
    const int extent = qMin(option->decorationSize.height(), option->fontMetrics.height());
    option->decorationSize = QSize(extent, extent);
}
