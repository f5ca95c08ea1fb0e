// SPDX-License-Identifier: MIT
#pragma once

#include <QTreeView>

namespace OrvGui {

/// The tree of the features: names in column 0, which the keyboard walks through, and values in
/// column 1, which it enters with F2 or Return and leaves with Escape or Return. Tab goes on to the
/// next value that can be changed. What the camera says of itself is shown literally.
class FeatureTree : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;

    /// Until the layout is done, expanding and collapsing cost nothing.
    using QTreeView::scheduleDelayedItemsLayout;

    void keyboardSearch(const QString &search) override;

protected:
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

protected slots:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    bool isEditorFocused() const;
    bool editCurrentRow();
    void goToName();
};

} // namespace OrvGui
