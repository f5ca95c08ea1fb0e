// SPDX-License-Identifier: MIT
#include "camconfig/mappedboolean.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

#include <QAbstractButton>

namespace OrvGui {

MappedBoolean::MappedBoolean(const MapperContext::Pointer &context, OrvGenParam::Boolean *param,
                             QAbstractButton *button)
    : MappedControl(context, button), m_param(param), m_button(button)
{
}

void MappedBoolean::show()
{
    int32_t error = OrvCam::Success;
    const bool value = m_context->read([&] { return m_param->GetValue(&error); });
    if (error != OrvCam::Success)
        return;
    m_context->note(m_param, value);
    m_button->setChecked(value);
}

void MappedBoolean::connectSignals()
{
    m_connections.add(m_button, &QAbstractButton::clicked, [this](bool isChecked) {
        m_context->write(m_button, m_param, isChecked,
                         [param = m_param, isChecked] { return param->SetValue(isChecked); });
    });
}

} // namespace OrvGui
