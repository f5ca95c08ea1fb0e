// SPDX-License-Identifier: MIT
#include "camconfig/areapresets.h"

#include "camconfig/paramaccess.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam/Array.h>

using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

constexpr qint64 qfhdWidth = 3840;
constexpr qint64 qfhdHeight = 2160;

bool read(int64_t (Int::*get)(int32_t *) const, const Int *param, qint64 &value)
{
    int32_t error = OrvCam::Success;
    value = (param->*get)(&error);
    return error == OrvCam::Success;
}

/// The largest value of the parameter's grid that is not above the given one.
qint64 floored(qint64 value, qint64 min, const Int *param)
{
    const qint64 increment = qMax<qint64>(param->GetInc(), 1);
    return value < min ? value : value - (value - min) % increment;
}

} // namespace

AreaPresets::AreaPresets(OrvGenParam::Array *array)
    : m_sensorWidth(array->GetInt("SensorWidth")), m_sensorHeight(array->GetInt("SensorHeight"))
{
    for (int side = 0; side < SideCount; ++side)
        m_sides[side] = array->GetInt(featureOf(static_cast<Side>(side)));
}

const char *AreaPresets::featureOf(Side side)
{
    static const char *const names[SideCount] = {"Frame_OffsetX", "Frame_OffsetY", "Frame_Width",
                                                 "Frame_Height"};
    return names[side];
}

bool AreaPresets::dependsOn(const Param *param) const
{
    if (!param)
        return false;
    for (const Int *side : m_sides) {
        if (side == param)
            return true;
    }
    return m_sensorWidth == param || m_sensorHeight == param;
}

bool AreaPresets::offers(Preset preset) const
{
    for (const Int *side : m_sides) {
        const bool isUsable = isWritable(side);
        if (preset == Custom && isUsable)
            return true;
        if (preset != Custom && !isUsable)
            return false;
    }
    Span x, y;
    return preset != Custom && find(preset, x, y);
}

bool AreaPresets::holds(Preset preset) const
{
    Span x, y;
    return preset == Custom ||
           (find(preset, x, y) && isHeld(OffsetX, Width, x) && isHeld(OffsetY, Height, y));
}

QVector<qint64> AreaPresets::area() const
{
    QVector<qint64> values;
    for (const Int *side : m_sides)
        values.append(side ? side->GetValue() : 0);
    return values;
}

AreaPresets::Steps AreaPresets::stepsTo(Preset preset) const
{
    Steps steps;
    Span x, y;
    if (preset != Custom && find(preset, x, y)) {
        appendSteps(OffsetX, Width, x, steps);
        appendSteps(OffsetY, Height, y, steps);
    }
    return steps;
}

bool AreaPresets::find(Preset preset, Span &x, Span &y) const
{
    return findSpan(preset, OffsetX, Width, m_sensorWidth, qfhdWidth, x) &&
           findSpan(preset, OffsetY, Height, m_sensorHeight, qfhdHeight, y);
}

bool AreaPresets::findSpan(Preset preset, Side offset, Side size, const Int *sensor, qint64 wanted,
                           Span &span) const
{
    const Int *const start = m_sides[offset];
    const Int *const length = m_sides[size];
    qint64 firstOffset, lastOffset, smallest, current;
    if (!start || !length || !read(&Int::GetMin, start, firstOffset) ||
        !read(&Int::GetMax, start, lastOffset) || !read(&Int::GetMin, length, smallest) ||
        !read(&Int::GetValue, length, current))
        return false;

    qint64 extent;
    if (!sensor || !read(&Int::GetValue, sensor, extent))
        extent = lastOffset + current; // the area may be moved to the edge of the sensor
    span.size = floored(preset == FullFrame ? extent : wanted, smallest, length);
    if (span.size < smallest || span.size > extent)
        return false;
    span.offset = preset == FullFrame
                      ? firstOffset
                      : qMax(firstOffset, floored((extent - span.size) / 2, firstOffset, start));
    return true;
}

bool AreaPresets::isHeld(Side offset, Side size, const Span &span) const
{
    qint64 start, length;
    return read(&Int::GetValue, m_sides[offset], start) &&
           read(&Int::GetValue, m_sides[size], length) && start == span.offset &&
           length == span.size;
}

// The area must stay on the sensor after each step.
void AreaPresets::appendSteps(Side offset, Side size, const Span &span, Steps &steps) const
{
    const qint64 current = m_sides[offset]->GetValue();
    const bool resizes = m_sides[size]->GetValue() != span.size;
    if (span.offset < current)
        steps.append({offset, span.offset});
    if (resizes)
        steps.append({size, span.size});
    if (span.offset > current)
        steps.append({offset, span.offset});
}

} // namespace OrvGui
