// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QList>
#include <QTimerEvent>

#include <functional>

/// Deals with the modal dialogs that open while it lives, one after the other: each action gets one
/// and has to close it. A dialog that nobody expects is rejected.
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
        if (!m_actions.isEmpty())
            return m_actions.takeFirst()(*dialog);
        m_isSurprised = true;
        dialog->reject();
    }

private:
    QList<Action> m_actions;
    QDialog *m_last = nullptr;
    bool m_isSurprised = false;
};
