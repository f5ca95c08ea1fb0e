// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

class QPushButton;
class QTimer;

namespace OrvGui {

/// A button that executes a command.
class MappedCommand final : public MappedControl
{
public:
    /// The timer may be null.
    MappedCommand(const MapperContext::Pointer &context, OrvGenParam::Command *param,
                  QPushButton *button, QTimer *timer);

    void connectSignals() override;

private:
    void execute();

    OrvGenParam::Command *const m_param;
    QPushButton *const m_button;
    const QPointer<QTimer> m_timer;
};

} // namespace OrvGui
