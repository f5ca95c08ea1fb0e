// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

#include <functional>

/// Handles the modal dialogs that open during its lifetime in their order: each action receives one
/// dialog and has to close it. An unexpected dialog is rejected, and so is one left open after a
/// failure in an action.
class ModalVisitor : public QObject
{
public:
    using Action = std::function<void(QDialog &)>;

    explicit ModalVisitor(QList<Action> actions) : m_actions(std::move(actions)) { startTimer(10); }

    /// Whether exactly the expected dialogs have opened.
    bool isDone() const { return m_actions.isEmpty() && !m_isSurprised; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || m_seen.contains(dialog))
            return;
        m_seen << dialog;
        // A timer does not fire again before its slot has returned, but the action may open another
        // dialog.
        QTimer::singleShot(0, dialog, [this, dialog] { visit(*dialog); });
    }

private:
    void visit(QDialog &dialog)
    {
        if (m_actions.isEmpty()) {
            m_isSurprised = true;
            dialog.reject();
            return;
        }
        m_actions.takeFirst()(dialog);
        if (QTest::currentTestFailed())
            dialog.reject(); // the action runs until this slot returns
    }

    QList<Action> m_actions;
    QList<QPointer<QDialog>> m_seen;
    bool m_isSurprised = false;
};
