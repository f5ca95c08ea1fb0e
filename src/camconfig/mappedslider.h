// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappednumber.h"

#include <QSlider>

namespace OrvGui {

/// An integer in a slider.
class MappedSlider final : public MappedNumber<QSlider>
{
public:
    using MappedNumber::MappedNumber;

    void connectSignals() override;

protected:
    void writeDragged() override;
};

} // namespace OrvGui
