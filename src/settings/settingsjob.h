// SPDX-License-Identifier: MIT
#pragma once

#include "settings/setting.h"

#include <QDialog>
#include <QPointer>

#include <atomic>
#include <functional>
#include <thread>

class QProgressBar;

namespace OrvGui {

/// Runs an operation on a camera on a separate thread, so that windows stay responsive. When it
/// takes long, a modal dialog shows the progress and lets the user cancel; the program's other
/// windows are blocked, because selectors may be moved.
///
/// The destructor cancels, and blocks until the operation has ended: at most for one answer of the
/// camera and for restoring the selectors.
class SettingsJob : public QObject
{
    Q_OBJECT

public:
    using Work = std::function<void(const SettingsProgress &)>;

    /// Starts at once. The dialog shows `text` in front of the window.
    SettingsJob(const QString &text, Work work, QWidget *window);
    ~SettingsJob() override;

    void cancel() { m_isCancelled = true; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The operation is done or cancelled, and its dialog is closed.
    void finished();

protected:
    bool event(QEvent *event) override;

private:
    void show();

    const QString m_text;
    const QPointer<QWidget> m_window;
    QPointer<QDialog> m_dialog;
    std::atomic<bool> m_isCancelled{false};
    std::atomic<int> m_done{0};
    std::atomic<int> m_total{0};
    std::thread m_thread;
};

} // namespace OrvGui
