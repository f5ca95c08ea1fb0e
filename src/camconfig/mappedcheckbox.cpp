// SPDX-License-Identifier: MIT
#include "camconfig/mappedcheckbox.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

#include <QCheckBox>

namespace OrvGui {

MappedCheckBox::MappedCheckBox(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                               QCheckBox *checkBox)
    : MappedControl(context, checkBox), m_param(param), m_checkBox(checkBox)
{
}

void MappedCheckBox::show()
{
    int32_t error = OrvCam::Success;
    const qint64 value = m_context->read([&] { return m_param->GetIntValue(&error); });
    if (error != OrvCam::Success)
        return;
    m_context->note(m_param, value);
    m_checkBox->setChecked(value != 0);
}

void MappedCheckBox::connectSignals()
{
    m_connections.add(m_checkBox, &QCheckBox::clicked, [this](bool isChecked) {
        const qint64 value = isChecked ? 1 : 0;
        m_context->write(m_checkBox, m_param, value,
                         [param = m_param, value] { return param->SetIntValue(value); });
    });
}

} // namespace OrvGui
