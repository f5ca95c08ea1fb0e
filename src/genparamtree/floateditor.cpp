// SPDX-License-Identifier: MIT
#include "genparamtree/floateditor.h"

#include "widgets/numbertext.h"

namespace OrvGui {

QValidator::State FloatEditor::validate(QString &input, int &pos) const
{
    NumberText::localizePoint(this, input);
    return QDoubleSpinBox::validate(input, pos);
}

} // namespace OrvGui
