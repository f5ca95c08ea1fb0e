// SPDX-License-Identifier: MIT
#include "selector/cameratreeview.h"

#include "selector/cameratreedelegate.h"
#include "selector/waitcursor.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

CameraTreeView::CameraTreeView(QWidget *parent) : QTreeView(parent)
{
    setItemDelegate(new CameraTreeDelegate(this));
}

bool CameraTreeView::isWithoutCameras(const QModelIndex &index) const
{
    return index.isValid() && model()->hasChildren(index) && model()->rowCount(index) == 0;
}

void CameraTreeView::searchAgain(const QModelIndex &interface)
{
    const WaitCursor waiting;
    collapse(interface);
    expand(interface);
}

// Qt draws no arrow for an expanded row without children.
void CameraTreeView::drawBranches(QPainter *painter, const QRect &rect,
                                  const QModelIndex &index) const
{
    QTreeView::drawBranches(painter, rect, index);
    if (!isWithoutCameras(index))
        return;
    QStyleOption option;
    option.initFrom(this);
    option.rect = rect;
    option.state |= QStyle::State_Item | QStyle::State_Children;
    option.state &= ~QStyle::State_MouseOver;
    style()->drawPrimitive(QStyle::PE_IndicatorBranch, &option, painter, this);
}

void CameraTreeView::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && isWithoutCameras(index) &&
        !visualRect(index).contains(event->pos())) {
        searchAgain(index);
        return;
    }
    QTreeView::mousePressEvent(event);
}

void CameraTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPersistentModelIndex index = indexAt(event->pos());
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && isWithoutCameras(index))
        searchAgain(index);
}

void CameraTreeView::keyPressEvent(QKeyEvent *event)
{
    const int opening = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    if (event->key() == opening && isWithoutCameras(currentIndex())) {
        searchAgain(currentIndex());
        return;
    }
    QTreeView::keyPressEvent(event);
}
