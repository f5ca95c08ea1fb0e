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

/// The undo and redo actions of a window for a journal, with Ctrl+Z and Ctrl+Shift+Z.
///
/// The actions are named "actionUndo" and "actionRedo". They are added to the window, whose context
/// menu may show them; also add them to a menu if there is one. A spin box or line edit with
/// uncommitted text handles the keys first. A step that the camera refuses is reported in a message
/// box of the window, in which it can be skipped.
class UndoActions : public QObject
{
    Q_OBJECT

public:
    /// A child of the window, whose editors must exist.
    explicit UndoActions(QWidget *window);

    /// Null disables both actions.
    void setJournal(const FeatureJournal::Pointer &journal);
    FeatureJournal::Pointer journal() const { return m_journal; }

    /// For the editors of an item view, which come and go during use and commit when they close.
    void watchEditorsOf(const QAbstractItemView *view);

    QAction *undo() const { return m_undo; }
    QAction *redo() const { return m_redo; }

Q_SIGNALS:
    /// Emitted before a step is undone or redone, so that pending edits can be committed first.
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
    QPointer<QWidget> m_viewport; ///< the parent of a view's editors
    FeatureJournal::Pointer m_journal;
};

} // namespace OrvGui
