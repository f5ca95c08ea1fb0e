// SPDX-License-Identifier: MIT
#pragma once

#include <QDoubleSpinBox>

namespace OrvGui {

/// The editor of a floating-point feature. Accepts a decimal point as well as the locale's decimal
/// sign; QDoubleSpinBox would drop it, which changes the number by a power of ten.
class FloatEditor : public QDoubleSpinBox
{
    Q_OBJECT

public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString &input, int &pos) const override;
};

} // namespace OrvGui
