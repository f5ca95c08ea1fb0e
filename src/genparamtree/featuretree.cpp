// SPDX-License-Identifier: MIT
#include "genparamtree/featuretree.h"

#include "base/cameratext.h"
#include "base/featuremetatype.h"
#include "genparamtree/editorstate.h"
#include "genparamtree/featurecell.h"
#include "genparamtree/genparamtreemodel.h"
#include "genparamtree/parameterdescription.h"
#include "genparamtree/treelookahead.h"

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWhatsThis>

namespace OrvGui {

namespace {

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;

/// An editor may emit signals while it is filled for the first time, and after it has been closed.
/// Qt does not know the editor then, and Qt 6 prints a warning.
bool isOpen(const QWidget *editor)
{
    const EditorState *state = EditorState::of(editor);
    return !state || state->isOpen();
}

} // namespace

void FeatureTree::setLookAhead(TreeLookAhead *lookAhead)
{
    m_lookAhead = lookAhead;
    m_waitingEdit = Edit();
    if (lookAhead)
        connect(lookAhead, &TreeLookAhead::arrived, this, &FeatureTree::showArrived);
}

std::set<GenApi::IValue *> FeatureTree::shownFeatures() const
{
    std::set<GenApi::IValue *> features;
    const int bottom = viewport()->height();
    for (QModelIndex row = indexAt(QPoint(0, 0)); row.isValid() && visualRect(row).top() < bottom;
         row = indexBelow(row))
        features.insert(featureOf(row));
    return features;
}

bool FeatureTree::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool isWanted = trigger == AllEditTriggers || (editTriggers() & trigger);
    if (!isWanted || isReadyForEditing(index))
        return openEditor(index, trigger, event);
    m_waitingEdit = {index, trigger, m_hint, isFocused()};
    return true;
}

bool FeatureTree::openEditor(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const QPersistentModelIndex cell(index);
    const bool isOpened = QTreeView::edit(index, trigger, event);
    const QWidget *editor = cell.isValid() ? indexWidget(cell) : nullptr;
    if (EditorState *state = editor ? EditorState::of(editor) : nullptr)
        state->setOpen(true);
    return isOpened;
}

bool FeatureTree::isReadyForEditing(const QModelIndex &index) const
{
    GenApi::IValue *feature = featureOf(index);
    return !m_lookAhead || !feature || index.column() != valueColumn || indexWidget(index) ||
           m_lookAhead->knowsEverything(feature);
}

void FeatureTree::showArrived()
{
    viewport()->update();
    const Edit edit = m_waitingEdit;
    const QModelIndex index = edit.index;
    // The user may have moved to another cell or widget.
    const bool isObsolete =
        index != currentIndex() || (edit.hadFocus && QApplication::focusWidget() && !isFocused());
    if (index.isValid() && !isObsolete && !isReadyForEditing(index))
        return;
    m_waitingEdit = Edit();
    if (!index.isValid() || isObsolete)
        return;
    const bool isEditable = index.flags() & Qt::ItemIsEditable;
    if (isEditable)
        openEditor(index, edit.trigger, nullptr);
    else if (edit.hint != QAbstractItemDelegate::NoHint)
        closeEditor(nullptr, edit.hint); // moves to the next cell
}

bool FeatureTree::isFocused() const
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && (focused == this || isAncestorOf(focused));
}

// Qt would interpret markup in the text, and open the images that it names.
bool FeatureTree::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip && event->type() != QEvent::WhatsThis)
        return QTreeView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    if (event->type() == QEvent::ToolTip) {
        const QString text = cameraText(index.data(Qt::ToolTipRole).toString().simplified());
        QToolTip::showText(help->globalPos(), literally(text), viewport());
    } else if (GenApi::IValue *feature = featureOf(index)) {
        QString text;
        knownDescription(feature, m_lookAhead, &text);
        QWhatsThis::showText(help->globalPos(), text, viewport());
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
        return; // a key that an editor ignores must not reach the tree
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
        goToName(); // moving through values would open editors, which take the next key
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
        setCurrentIndex(value); // opens the editor
    return true;
}

void FeatureTree::goToName()
{
    const QModelIndex current = currentIndex();
    if (current.column() == valueColumn)
        selectionModel()->setCurrentIndex(current.sibling(current.row(), nameColumn),
                                          QItemSelectionModel::NoUpdate);
}

// Tab and Backtab in an editor move to the next and the previous cell.
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

void FeatureTree::commitData(QWidget *editor)
{
    if (editor && isOpen(editor))
        QTreeView::commitData(editor);
}

void FeatureTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (editor && !isOpen(editor))
        return;
    if (EditorState *state = editor ? EditorState::of(editor) : nullptr)
        state->setOpen(false);
    const bool isCurrent = editor && indexWidget(currentIndex()) == editor;
    m_hint = hint;
    QTreeView::closeEditor(editor, hint);
    m_hint = QAbstractItemDelegate::NoHint;
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
