// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

class QAbstractButton;

namespace OrvGui {

/// A checkable button for a boolean.
class MappedBoolean final : public MappedControl
{
public:
    MappedBoolean(const MapperContext::Pointer &context, OrvGenParam::Boolean *param,
                  QAbstractButton *button);

    void show() override;
    void connectSignals() override;

private:
    OrvGenParam::Boolean *const m_param;
    QAbstractButton *const m_button;
};

} // namespace OrvGui
