// SPDX-License-Identifier: MIT
#include "featuretree.h"

#include "featurecell.h"

#include <QApplication>
#include <QKeyEvent>

namespace OrvGui {

namespace {

const int nameColumn = 0;
const int valueColumn = 1;

} // namespace

void FeatureTree::keyboardSearch(const QString &search)
{
    goToName();
    QTreeView::keyboardSearch(search);
}

void FeatureTree::keyPressEvent(QKeyEvent *event)
{
    if (isEditorFocused())
        return; // what an editor leaves alone must not move on to another one
    switch (event->key()) {
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (editCurrentRow())
            return;
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        goToName(); // on the way through the values, an editor would take the next key
        break;
    default:
        break;
    }
    QTreeView::keyPressEvent(event);
}

bool FeatureTree::isEditorFocused() const
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && focused != viewport() && viewport()->isAncestorOf(focused);
}

bool FeatureTree::editCurrentRow()
{
    const QModelIndex value = currentIndex().sibling(currentIndex().row(), valueColumn);
    if (!(value.flags() & Qt::ItemIsEditable))
        return false;
    if (value == currentIndex())
        edit(value);
    else
        setCurrentIndex(value); // which opens the editor
    return true;
}

void FeatureTree::goToName()
{
    const QModelIndex current = currentIndex();
    if (current.column() == valueColumn)
        selectionModel()->setCurrentIndex(current.sibling(current.row(), nameColumn),
                                          QItemSelectionModel::NoUpdate);
}

// Tab and Backtab in an editor ask for the next and the previous cell.
QModelIndex FeatureTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveNext && action != MovePrevious)
        return QTreeView::moveCursor(action, modifiers);
    QModelIndex row = currentIndex().sibling(currentIndex().row(), nameColumn);
    QModelIndex value;
    do {
        row = action == MoveNext ? indexBelow(row) : indexAbove(row);
        value = row.sibling(row.row(), valueColumn);
    } while (row.isValid() && !(value.flags() & Qt::ItemIsEditable));
    return value;
}

void FeatureTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool isCurrent = editor && indexWidget(currentIndex()) == editor;
    QTreeView::closeEditor(editor, hint);
    if (isCurrent && !indexWidget(currentIndex()))
        goToName();
}

void FeatureTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem readable(option);
    keepRowsReadable(&readable.palette);
    QTreeView::drawRow(painter, readable, index);
}

} // namespace OrvGui
