// SPDX-License-Identifier: MIT
#include "camconfig/mappedcommand.h"

#include <OrvGenParam.h>

#include <QPushButton>
#include <QTimer>

namespace OrvGui {

MappedCommand::MappedCommand(const MapperContext::Pointer &context, OrvGenParam::Command *param,
                             QPushButton *button, QTimer *timer)
    : MappedControl(context, button), m_param(param), m_button(button), m_timer(timer)
{
}

void MappedCommand::connectSignals()
{
    m_connections.add(m_button, &QPushButton::clicked, [this] { execute(); });
}

void MappedCommand::execute()
{
    const auto call = [param = m_param, button = m_widget, timer = m_timer] {
        // A receiver of the notification may destroy this object.
        const qint32 code = param->Execute();
        if (timer && button) {
            button->setEnabled(false);
            timer->start();
        }
        return code;
    };
    m_context->write(m_button, m_param, QVariant(), call);
}

} // namespace OrvGui
