// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Shows a line of plain text in its colour or, if the contrast to the background is insufficient,
/// in the nearest colour that has enough contrast.
class ReadableLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};
