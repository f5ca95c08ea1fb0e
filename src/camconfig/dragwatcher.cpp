// SPDX-License-Identifier: MIT
#include "camconfig/dragwatcher.h"

namespace OrvGui {

void DragWatcher::begin()
{
    m_atPress = m_value();
}

void DragWatcher::end(bool isEnabled)
{
    if (isEnabled && m_value() != m_atPress)
        emit changed();
    else
        emit unchanged();
}

} // namespace OrvGui
