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

TreeViewResizer::TreeViewResizer(QTreeView *treeView) : QObject(treeView), m_tree(treeView)
{
    m_tree->installEventFilter(this);
    m_tree->viewport()->installEventFilter(this);
    m_tree->viewport()->setAttribute(Qt::WA_MouseTracking);
    m_tree->header()->setMinimumSectionSize(2 * m_margin); // smaller than the style's default
}

QModelIndex TreeViewResizer::ifResizable(const QPoint &pos)
{
    // The probe position is inside the cell while the pointer is on the border.
    const QModelIndex cell = m_tree->indexAt(pos - QPoint(m_margin + 1, m_margin + 1));
    if (!cell.isValid())
        return QModelIndex();
    const bool onBorder = qAbs(m_tree->visualRect(cell).right() - pos.x()) < m_margin;
    const bool interactive =
        m_tree->header()->sectionResizeMode(cell.column()) == QHeaderView::Interactive;
    return onBorder && interactive ? cell : QModelIndex();
}

bool TreeViewResizer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_tree && event->type() == QEvent::Show)
        emit showed();
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseMove && type != QEvent::MouseButtonPress &&
        type != QEvent::MouseButtonRelease)
        return false; // a tree that is being destroyed has no viewport
    if (watched != m_tree->viewport())
        return false;

    auto *mouseEvent = static_cast<QMouseEvent *>(event);
    if (type == QEvent::MouseMove)
        return mouseMove(mouseEvent);
    return type == QEvent::MouseButtonPress ? mousePress(mouseEvent) : mouseRelease(mouseEvent);
}

bool TreeViewResizer::mouseMove(const QMouseEvent *event)
{
    if (!m_isDragging) {
        const bool resizable = ifResizable(localPosition(event)).isValid();
        m_tree->viewport()->setCursor(resizable ? QCursor(Qt::SplitHCursor) : QCursor());
        return false;
    }
    const int delta = globalX(event) - m_lastX;
    m_lastX = globalX(event);
    QHeaderView *header = m_tree->header();
    header->resizeSection(m_column, qMax(header->sectionSize(m_column) + delta, 2 * m_margin));
    return true;
}

bool TreeViewResizer::mousePress(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_isDragging)
        return false;
    const QModelIndex cell = ifResizable(localPosition(event));
    if (!cell.isValid())
        return false;
    m_isDragging = true;
    m_lastX = globalX(event);
    m_column = cell.column();
    return true;
}

bool TreeViewResizer::mouseRelease(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_isDragging)
        return false;
    m_isDragging = false;
    return true;
}
