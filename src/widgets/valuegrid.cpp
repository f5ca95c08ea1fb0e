// SPDX-License-Identifier: MIT
#include "widgets/valuegrid.h"

#include <cmath>
#include <limits>

namespace ValueGrid {

qint64 truncated(double number)
{
    // 2^63, the first double above the range; the largest int64 has no exact double.
    constexpr double limit = 9223372036854775808.0;
    if (number >= limit)
        return std::numeric_limits<qint64>::max();
    if (number >= -limit)
        return static_cast<qint64>(number);
    return std::numeric_limits<qint64>::min();
}

int toInt(qint64 number)
{
    if (number > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    if (number < std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    return static_cast<int>(number);
}

int toInt(double number)
{
    return toInt(truncated(number));
}

int snapped(int value, int minimum, int maximum, int step)
{
    if (value == minimum || value == maximum)
        return value;

    const qint64 wideStep = step;
    qint64 distance = static_cast<qint64>(value) - minimum;
    const qint64 remainder = step == 0 ? distance : distance % wideStep;
    if (remainder != 0)
        distance += remainder >= (step >> 1) ? wideStep - remainder : -remainder;

    const qint64 result = minimum + distance;
    return result < maximum ? toInt(result) : maximum;
}

double stepFraction(double distance, double step)
{
    const double steps = distance / step;
    return std::isfinite(steps) ? steps - std::trunc(steps) : 0.0;
}

} // namespace ValueGrid
