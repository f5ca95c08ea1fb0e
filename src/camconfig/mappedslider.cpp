// SPDX-License-Identifier: MIT
#include "camconfig/mappedslider.h"

namespace OrvGui {

void MappedSlider::connectSignals()
{
    m_connections.add(m_number, &QSlider::valueChanged, [this](int value) {
        if (!m_number->isSliderDown())
            write(value);
    });
    watchDrags(m_number);
}

void MappedSlider::writeDragged()
{
    write(m_number->value());
}

} // namespace OrvGui
