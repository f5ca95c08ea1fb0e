// SPDX-License-Identifier: MIT
#include "base/readablecolors.h"

#include <algorithm>
#include <cmath>

namespace OrvGui {

namespace {

// WCAG requires 4.5; antialiased thin strokes are a little paler than their colour.
constexpr double minContrast = 5;

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

bool isReadable(const QColor &text, const QColor &background)
{
    return contrast(text, background) >= minContrast;
}

QColor readableOn(const QColor &background, const QColor &text)
{
    const bool isBlackBetter = contrast(Qt::black, background) > contrast(Qt::white, background);
    const QColor end = isBlackBetter ? Qt::black : Qt::white;
    const int steps = 20;
    for (int step = 0; step < steps; ++step) {
        const QColor color = mixed(text, end, double(step) / steps);
        if (isReadable(color, background))
            return color;
    }
    return end;
}

QColor mixed(const QColor &first, const QColor &second, double share)
{
    // QColor's numbers are double in Qt 5 and float in Qt 6.
    using Number = decltype(first.redF());
    const auto mix = [share](Number a, Number b) { return Number(a + (b - a) * share); };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

} // namespace OrvGui
