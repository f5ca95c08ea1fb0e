// SPDX-License-Identifier: MIT
#pragma once

#include <QDoubleSpinBox>

namespace OrvGui {

/// The editor of a floating-point feature: takes a decimal point beside the locale's sign, which
/// would otherwise be dropped and leave ten times the number.
class FloatEditor : public QDoubleSpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString &input, int &pos) const override;
};

} // namespace OrvGui
