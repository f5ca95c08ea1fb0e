// SPDX-License-Identifier: MIT
#include "camconfig/microseconds.h"

QString OrvGui::Microseconds::unit()
{
    return tr("%1s").arg(mu());
}
