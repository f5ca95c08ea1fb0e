// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedint.h"

class QLineEdit;

namespace OrvGui {

/// An integer in a line edit, whose limits are those of its `QIntValidator`.
class MappedLineEdit final : public MappedInt
{
public:
    MappedLineEdit(const MapperContext::Pointer &context, OrvGenParam::Int *param,
                   QLineEdit *lineEdit);

    void show() override;
    void connectSignals() override;

private:
    void showLimits();
    void writeText();

    QLineEdit *const m_lineEdit;
};

} // namespace OrvGui
