// SPDX-License-Identifier: MIT
#include "floateditor.h"

#include "numbertext.h"

namespace OrvGui {

QValidator::State FloatEditor::validate(QString &input, int &pos) const
{
    NumberText::localizePoint(this, input);
    return QDoubleSpinBox::validate(input, pos);
}

} // namespace OrvGui
