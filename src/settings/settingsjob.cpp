// SPDX-License-Identifier: MIT
#include "settings/settingsjob.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

namespace OrvGui {

namespace {

constexpr int dialogDelay = 300;   // ms until the dialog is shown
constexpr int progressPeriod = 50; // ms

/// Stays open until the operation has ended, even after "Cancel", because selectors may be moved.
class ProgressDialog : public QDialog
{
public:
    using QDialog::QDialog;
    void reject() override { emit rejected(); }
};

} // namespace

SettingsJob::SettingsJob(const QString &text, Work work, QWidget *window)
    : QObject(window), m_text(text), m_window(window)
{
    // The dialog does it when it is shown.
    QApplication::instance()->installEventFilter(this);
    QTimer::singleShot(dialogDelay, this, [this] { show(); });
    m_thread = std::thread([this, work = std::move(work)] {
        work([this](int done, int total) {
            m_done = done;
            m_total = total;
            return !m_isCancelled;
        });
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    });
}

SettingsJob::~SettingsJob()
{
    cancel();
    if (m_thread.joinable())
        m_thread.join();
    delete m_dialog;
}

bool SettingsJob::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::Wheel:
        return !m_dialog && watched->isWidgetType();
    default:
        return QObject::eventFilter(watched, event);
    }
}

void SettingsJob::show()
{
    m_dialog = new ProgressDialog(m_window);
    m_dialog->setObjectName(QStringLiteral("SettingsProgress"));
    m_dialog->setWindowTitle(tr("Camera Settings"));
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setWindowFlags(m_dialog->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    auto *head = new QLabel(m_text, m_dialog);
    head->setTextFormat(Qt::PlainText);
    head->setWordWrap(true);
    auto *bar = new QProgressBar(m_dialog);
    bar->setMinimumWidth(40 * m_dialog->fontMetrics().averageCharWidth());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, m_dialog);
    auto *layout = new QVBoxLayout(m_dialog);
    layout->addWidget(head);
    layout->addWidget(bar);
    layout->addWidget(buttons);

    const auto showProgress = [=] {
        bar->setRange(0, m_total); // without a range the bar shows an undetermined progress
        bar->setValue(m_done);
    };
    auto *timer = new QTimer(m_dialog);
    connect(timer, &QTimer::timeout, bar, showProgress);
    connect(buttons, &QDialogButtonBox::rejected, m_dialog, &QDialog::reject);
    connect(m_dialog, &QDialog::rejected, this, &SettingsJob::cancel);
    connect(m_dialog, &QDialog::rejected, buttons, [=] { buttons->setEnabled(false); });
    timer->start(progressPeriod);
    showProgress();
    m_dialog->show();
}

bool SettingsJob::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    m_thread.join();
    delete m_dialog;
    QApplication::instance()->removeEventFilter(this);
    emit finished();
    return true;
}

} // namespace OrvGui
