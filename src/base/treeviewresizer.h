// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>
#include <QObject>

class QMouseEvent;
class QPoint;
class QTreeView;

/// Lets the user resize the columns of a tree view whose header is hidden, by dragging the right
/// border of any cell.
///
/// Create one for the tree; it becomes the tree's child and watches the tree and its viewport.
/// Only columns whose header section is interactive can be dragged.
class TreeViewResizer : public QObject
{
    Q_OBJECT

public:
    explicit TreeViewResizer(QTreeView *treeView);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The cell whose right border is under the position, in viewport coordinates.
    QModelIndex ifResizable(const QPoint &pos);

signals:
    /// Emitted each time the tree is shown.
    void showed();

private:
    bool mouseMove(const QMouseEvent *event);
    bool mousePress(const QMouseEvent *event);
    bool mouseRelease(const QMouseEvent *event);

    QTreeView *m_tree;
    int m_margin = 5; ///< grab distance in pixels
    bool m_isDragging = false;
    int m_column = 0;
    int m_lastX = 0; ///< in global coordinates
};
