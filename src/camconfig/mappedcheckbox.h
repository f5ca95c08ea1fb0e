// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

class QCheckBox;

namespace OrvGui {

/// A check box for an enumeration, unchecked for the value 0.
class MappedCheckBox final : public MappedControl
{
public:
    MappedCheckBox(const MapperContext::Pointer &context, OrvGenParam::Enum *param,
                   QCheckBox *checkBox);

    void show() override;
    void connectSignals() override;

private:
    OrvGenParam::Enum *const m_param;
    QCheckBox *const m_checkBox;
};

} // namespace OrvGui
