// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace OrvGui {

/// The caption of a number, which opens the number's history when it is clicked.
///
/// Looks like any label, but for the cursor and a line below the text while the pointer is over it,
/// and for a frame while it has the focus. Return and the space bar click it.
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
