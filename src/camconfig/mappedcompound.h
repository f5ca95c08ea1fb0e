// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappednumber.h"
#include "widgets/qtorvslider.h"
#include "widgets/qtorvspinboxval.h"

namespace OrvGui {

/// An integer in a `QtOrvSpinBox` or `QtOrvSliderSpinBox`.
template<class Compound>
class MappedCompound final : public MappedNumber<Compound>
{
    using Base = MappedNumber<Compound>;

public:
    using Base::Base;

    void prepare() override
    {
        this->m_number->setValidate(true);
        this->m_number->setValidateTyping(false);
        this->show();
    }

    void connectSignals() override
    {
        this->m_connections.add(this->m_number,
                                static_cast<void (Compound::*)(int)>(&Compound::valueChanged),
                                [this](int value) { this->write(value); });
        this->watchDrags(this->m_number->slider());
    }

protected:
    // The widget does not report a drag; its end is a change for all receivers.
    void writeDragged() override
    {
        Compound *const compound = this->m_number;
        const int value = compound->spinBox()->doValidation(compound->value());
        if (value != compound->value()) {
            compound->setValue(value);
        } else {
            emit compound->valueChanged(compound->spinBox()->text());
            emit compound->valueChanged(value);
        }
    }
};

} // namespace OrvGui
