// SPDX-License-Identifier: MIT
#include "camconfig/openingprogress.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace OrvGui {

OpeningProgress::OpeningProgress(const QString &camera, QWidget *parent)
    : QDialog(parent), m_step(new QLabel(this)), m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("OpeningProgress"));
    setWindowTitle(tr("Open Camera"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setAttribute(Qt::WA_QuitOnClose, false); // there may be no other window yet

    auto *head = new QLabel(tr("Opening %1").arg(camera), this);
    head->setTextFormat(Qt::PlainText);
    head->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(head);
    layout->addWidget(m_bar);
    layout->addWidget(m_step);
    layout->addWidget(buttons);
    m_bar->setMinimumWidth(40 * fontMetrics().averageCharWidth());
    setShare(-1);
}

void OpeningProgress::setShare(int percent)
{
    // Without a range the bar shows an undetermined progress.
    m_bar->setRange(0, percent < 0 ? 0 : 100);
    m_bar->setValue(percent < 0 ? -1 : percent);
    m_step->setText(percent < 0 ? tr("Connecting...") : tr("Reading the camera's description..."));
}

} // namespace OrvGui
