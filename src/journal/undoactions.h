// SPDX-License-Identifier: MIT
#pragma once

#include "journal/featurejournal.h"

#include <QObject>
#include <QPointer>

class QAbstractItemView;
class QAction;
class QLineEdit;
class QWidget;

namespace OrvGui {

/// Undo and redo of a journal as two actions of a window, by Ctrl+Z and Ctrl+Shift+Z.
///
/// The actions are named "actionUndo" and "actionRedo". They are added to the window, whose context
/// menu you may have show them; put them into a menu, too, if there is one. A text that the user
/// has typed in a spin box or a line edit and that does not count yet takes the keys first. A step
/// that the camera refuses is reported in a message box of the window, in which it can be skipped.
class UndoActions : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the window, whose editors exist already.
    explicit UndoActions(QWidget *window);

    /// Null for none, which disables both.
    void setJournal(const FeatureJournal::Pointer &journal);
    FeatureJournal::Pointer journal() const { return m_journal; }

    /// For the editors of an item view, which come and go: what is typed in them counts when they
    /// close.
    void watchEditorsOf(const QAbstractItemView *view);

    QAction *undo() const { return m_undo; }
    QAction *redo() const { return m_redo; }

Q_SIGNALS:
    /// The user undoes or redoes something now; what is being edited can be written before that.
    void triggered();

protected:
    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    using Replay = bool (FeatureJournal::*)(QString *);

    QAction *add(const QString &name, const QList<QKeySequence> &keys, Replay replay);
    void watch(QWidget *editor);
    bool isPending(const QObject *editor) const;
    void run(Replay replay);
    void report(bool isUndo, const QString &reason);
    void show();

    QWidget *const m_window;
    QAction *const m_undo;
    QAction *const m_redo;
    QPointer<QWidget> m_viewport; ///< whose children are editors of a view
    FeatureJournal::Pointer m_journal;
};

} // namespace OrvGui
