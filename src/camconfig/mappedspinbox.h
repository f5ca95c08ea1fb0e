// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappednumber.h"

class QSpinBox;

namespace OrvGui {

/// An integer in a spin box, written when it is entered.
class MappedSpinBox final : public MappedNumber<QSpinBox>
{
public:
    MappedSpinBox(const MapperContext::Pointer &context, OrvGenParam::Int *param,
                  QSpinBox *spinBox);

    void prepare() override;
    void connectSignals() override;
};

} // namespace OrvGui
