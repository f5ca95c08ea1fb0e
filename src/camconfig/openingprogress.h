// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace OrvGui {

/// Shows the progress of opening a camera; rejected when the user cancels it.
class OpeningProgress : public QDialog
{
    Q_OBJECT

public:
    explicit OpeningProgress(const QString &camera, QWidget *parent = nullptr);

    /// The downloaded share of the camera's description; below 0 while it is not known.
    void setShare(int percent);

private:
    QLabel *const m_step;
    QProgressBar *const m_bar;
};

} // namespace OrvGui
