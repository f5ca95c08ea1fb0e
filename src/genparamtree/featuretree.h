// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTreeView>

#include <set>

namespace OrvGui {

class TreeLookAhead;

/// The tree of the features: names in column 0 and values in column 1. The keyboard moves through
/// the names; F2 or Return starts editing, Escape or Return ends it, and Tab moves to the next
/// editable value. An editor opens when all values that it needs are cached. The camera's texts are
/// shown literally.
class FeatureTree : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;

    /// Until the layout is done, expanding and collapsing are cheap.
    using QTreeView::scheduleDelayedItemsLayout;

    /// Null for none; then calls block for the camera.
    void setLookAhead(TreeLookAhead *lookAhead);

    /// The features whose rows are visible on the screen.
    std::set<GenApi::IValue *> shownFeatures() const;

    void keyboardSearch(const QString &search) override;

protected:
    using QTreeView::edit;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

protected slots:
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    /// An editor that is waiting to be opened.
    struct Edit
    {
        QPersistentModelIndex index;
        EditTrigger trigger = NoEditTriggers;
        QAbstractItemDelegate::EndEditHint hint = QAbstractItemDelegate::NoHint;
        bool hadFocus = false;
    };

    bool isReadyForEditing(const QModelIndex &index) const;
    bool openEditor(const QModelIndex &index, EditTrigger trigger, QEvent *event);
    void showArrived();
    bool isFocused() const;
    bool isEditorFocused() const;
    bool editCurrentRow();
    void goToName();

    QPointer<TreeLookAhead> m_lookAhead;
    Edit m_waitingEdit;
    QAbstractItemDelegate::EndEditHint m_hint = QAbstractItemDelegate::NoHint;
};

} // namespace OrvGui
