// SPDX-License-Identifier: MIT
#include "formfit.h"

#include "qtorvspinbox.h"

#include <QLabel>

void FormFit::align(const QList<QLabel *> &labels)
{
    int width = 0;
    for (const QLabel *label : labels)
        width = qMax(width, label->sizeHint().width());
    for (QLabel *label : labels)
        label->setMinimumWidth(width);
}

void FormFit::fitUprightSlider(QtOrvSpinBox *spinBox)
{
    const QLabel *label = spinBox->leftLabel();
    spinBox->resizeSlider(spinBox->height(), spinBox->width() - (label ? label->width() : 0));
}
