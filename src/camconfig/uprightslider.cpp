// SPDX-License-Identifier: MIT
#include "camconfig/uprightslider.h"

#include "widgets/qtorvspinbox.h"

#include <QLabel>

void OrvGui::fitUprightSlider(QtOrvSpinBox *spinBox)
{
    const QLabel *label = spinBox->leftLabel();
    spinBox->resizeSlider(spinBox->height(), spinBox->width() - (label ? label->width() : 0));
}
