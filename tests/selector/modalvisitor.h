// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QPointer>
#include <QTest>
#include <QTimerEvent>

#include <functional>

/// Deals with the modal dialogs that open while it lives, one after the other: each action gets one
/// and has to close it. A dialog that nobody expects is rejected, as is one left open by an action in
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
        if (!dialog || dialog == m_last)
            return;
        m_last = dialog;
        if (m_actions.isEmpty()) {
            m_isSurprised = true;
            dialog->reject();
            return;
        }
        m_actions.takeFirst()(*dialog);
        if (QTest::currentTestFailed())
            dialog->reject(); // runs until this returns
    }

private:
    QList<Action> m_actions;
    QPointer<QDialog> m_last; // another may get its place in memory
    bool m_isSurprised = false;
};
