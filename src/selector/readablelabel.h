// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// Shows a plain text of a line in its colour, or where that cannot be read on the background, in
/// the nearest one that can.
class ReadableLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};
