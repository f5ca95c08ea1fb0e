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

/// Handles the modal dialogs that open during its lifetime, one after the other: each action gets
/// one and has to close it. An unexpected dialog is rejected, as is one left open by an action in
/// which the test has failed.
class ModalVisitor : public QObject
{
public:
    using Action = std::function<void(QDialog &)>;

    explicit ModalVisitor(QList<Action> actions) : m_actions(std::move(actions)) { startTimer(10); }

    /// Exactly the expected dialogs have opened.
    bool isDone() const { return m_actions.isEmpty() && !m_isSurprised; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || m_seen.contains(dialog))
            return;
        m_seen << dialog;
        // This timer stands still until it returns, but the action may open the next dialog.
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
            dialog.reject(); // runs until this returns
    }

    QList<Action> m_actions;
    QList<QPointer<QDialog>> m_seen;
    bool m_isSurprised = false;
};
