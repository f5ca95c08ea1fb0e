// SPDX-License-Identifier: MIT
#include "camconfig/mappedspinbox.h"

#include <QSpinBox>

namespace OrvGui {

MappedSpinBox::MappedSpinBox(const MapperContext::Pointer &context, OrvGenParam::Int *param,
                             QSpinBox *spinBox)
    : MappedNumber(context, param, spinBox, nullptr)
{
}

void MappedSpinBox::prepare()
{
    m_number->setKeyboardTracking(false);
    show();
}

void MappedSpinBox::connectSignals()
{
    m_connections.add(m_number, static_cast<void (QSpinBox::*)(int)>(&QSpinBox::valueChanged),
                      [this](int value) { write(value); });
}

} // namespace OrvGui
