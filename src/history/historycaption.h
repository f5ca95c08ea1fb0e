// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace OrvGui {

/// The caption of a number, which opens the number's history when it is clicked.
///
/// Looks like an ordinary label, but has another cursor, an underline while the pointer is over it,
/// and a frame while it has the focus. Return and the space bar click it.
class HistoryCaption : public QLabel
{
    Q_OBJECT

public:
    explicit HistoryCaption(QWidget *parent = nullptr);

    void click();

Q_SIGNALS:
    void clicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool m_isPressed = false;
};

} // namespace OrvGui
