// SPDX-License-Identifier: MIT
#pragma once

#include <GenApi/IValue.h>

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTreeView>

#include <set>

namespace OrvGui {

class TreeLookAhead;

/// The tree of the features: names in column 0, which the keyboard walks through, and values in
/// column 1, which it enters with F2 or Return and leaves with Escape or Return. Tab goes on to the
/// next value that can be changed. An editor opens when all that it needs is known. What the camera
/// says of itself is shown literally.
class FeatureTree : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;

    /// Until the layout is done, expanding and collapsing cost nothing.
    using QTreeView::scheduleDelayedItemsLayout;

    /// Null for none; the camera is waited for then.
    void setLookAhead(TreeLookAhead *lookAhead);

    /// The features whose rows are on the screen.
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
    /// An editor that is to be opened.
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
