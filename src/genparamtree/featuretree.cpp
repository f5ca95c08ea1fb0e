// SPDX-License-Identifier: MIT
#include "featuretree.h"

#include "featurecell.h"
#include "genparamtreemodel.h"
#include "parameterdescription.h"

#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWhatsThis>

namespace OrvGui {

namespace {

const int nameColumn = 0;
const int valueColumn = 1;

QString literally(const QString &text)
{
    return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

} // namespace

// Qt would lay out a text that looks like markup, and open the pictures that it names.
bool FeatureTree::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip && event->type() != QEvent::WhatsThis)
        return QTreeView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    if (event->type() == QEvent::ToolTip) {
        const QString text = index.data(Qt::ToolTipRole).toString();
        QToolTip::showText(help->globalPos(), literally(text), viewport());
    } else if (auto *feature = index.data(Qt::UserRole).value<GenApi::IValue *>()) {
        QWhatsThis::showText(help->globalPos(), escapedDescription(feature), viewport());
    }
    return true;
}

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
