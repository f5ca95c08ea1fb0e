// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/mappedcontrol.h"

namespace OrvGui {

class IOrvCamConfigIntConverter;

/// An integer in a widget: reads it in the unit of the widget, and writes it in the camera's.
class MappedInt : public MappedControl
{
protected:
    struct Limits
    {
        int min = 0;
        int max = 0;
        int step = 1;
        bool isKnown = false;
    };
    struct Value
    {
        qint64 number = 0; ///< at most the value cap
        bool isKnown = false;
    };

    /// The converter may be null.
    MappedInt(const MapperContext::Pointer &context, OrvGenParam::Int *param, QWidget *widget,
              IOrvCamConfigIntConverter *converter);

    Limits readLimits() const;
    Value readValue() const;
    void explainLimits(const Limits &limits);
    void write(int shown);

private:
    qint64 toWidget(qint64 number) const;
    qint64 capped(qint64 number) const;

    OrvGenParam::Int *const m_param;
    IOrvCamConfigIntConverter *const m_converter;
};

} // namespace OrvGui
