// SPDX-License-Identifier: MIT
#include "base/treeviewresizer.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

namespace {

QPoint localPosition(const QMouseEvent *event)
{
    return QPoint(qRound(event->localPos().x()), qRound(event->localPos().y()));
}

int globalX(const QMouseEvent *event)
{
    return qRound(event->screenPos().x());
}

} // namespace

TreeViewResizer::TreeViewResizer(QTreeView *treeView) : QObject(treeView), tree(treeView)
{
    tree->installEventFilter(this);
    tree->viewport()->installEventFilter(this);
    tree->viewport()->setAttribute(Qt::WA_MouseTracking);
    tree->header()->setMinimumSectionSize(2 * margin); // the style's would be larger
}

QModelIndex TreeViewResizer::ifResizable(const QPoint &pos)
{
    // The probe lies inside the cell while the pointer is on its border.
    const QModelIndex cell = tree->indexAt(pos - QPoint(margin + 1, margin + 1));
    if (!cell.isValid())
        return QModelIndex();
    const bool onBorder = qAbs(tree->visualRect(cell).right() - pos.x()) < margin;
    const bool interactive =
        tree->header()->sectionResizeMode(cell.column()) == QHeaderView::Interactive;
    return onBorder && interactive ? cell : QModelIndex();
}

bool TreeViewResizer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == tree && event->type() == QEvent::Show)
        emit showed();
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseMove && type != QEvent::MouseButtonPress &&
        type != QEvent::MouseButtonRelease)
        return false; // also while the tree is being destroyed, when it has no viewport to ask for
    if (watched != tree->viewport())
        return false;

    auto *mouseEvent = static_cast<QMouseEvent *>(event);
    if (type == QEvent::MouseMove)
        return mouseMove(mouseEvent);
    return type == QEvent::MouseButtonPress ? mousePress(mouseEvent) : mouseRelease(mouseEvent);
}

bool TreeViewResizer::mouseMove(const QMouseEvent *event)
{
    if (!dragging) {
        const bool resizable = ifResizable(localPosition(event)).isValid();
        tree->viewport()->setCursor(resizable ? QCursor(Qt::SplitHCursor) : QCursor());
        return false;
    }
    const int delta = globalX(event) - lastX;
    lastX = globalX(event);
    QHeaderView *header = tree->header();
    header->resizeSection(column, qMax(header->sectionSize(column) + delta, 2 * margin));
    return true;
}

bool TreeViewResizer::mousePress(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || dragging)
        return false;
    const QModelIndex cell = ifResizable(localPosition(event));
    if (!cell.isValid())
        return false;
    dragging = true;
    lastX = globalX(event);
    column = cell.column();
    return true;
}

bool TreeViewResizer::mouseRelease(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !dragging)
        return false;
    dragging = false;
    return true;
}
