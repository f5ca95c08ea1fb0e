// SPDX-License-Identifier: MIT
#include "camconfig/exposuretime.h"

#include "camconfig/featurereader.h"

#include <OrvGenParam/Array.h>

#include <limits>

using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

constexpr qint64 usualPixelClock = 160;

/// The largest number that a widget can show.
const qint64 largest = std::numeric_limits<int>::max();

qint64 product(qint64 a, qint64 b)
{
    qint64 result = 0;
    if (!__builtin_mul_overflow(a, b, &result))
        return result;
    return (a < 0) == (b < 0) ? std::numeric_limits<qint64>::max()
                              : std::numeric_limits<qint64>::min();
}

long quotient(qint64 dividend, qint64 divisor)
{
    if (divisor == 0)
        return 0;
    const double end = 9.2e18; // in the range of the result type
    const double number = static_cast<double>(dividend) / static_cast<double>(divisor);
    return static_cast<long>(qBound(-end, number + 0.5, end));
}

} // namespace

ExposureTime::ExposureTime(OrvGenParam::Array *array)
{
    for (int feature = 0; feature < FeatureCount; ++feature)
        m_params[feature] = array->GetInt(featureOf(static_cast<Feature>(feature)));
}

const char *ExposureTime::featureOf(Feature feature)
{
    static const char *const names[FeatureCount] = {"PixelClock", "Frame_LineTime",
                                                    "Frame_ExposureLines", "Frame_ExposureClocks"};
    return names[feature];
}

bool ExposureTime::isUnit(const Param *param) const
{
    return param && (param == m_params[PixelClock] || param == m_params[LineTime]);
}

bool ExposureTime::isPart(const Param *param) const
{
    return param && (param == m_params[Lines] || param == m_params[Clocks]);
}

void ExposureTime::readPixelClock(const FeatureReader &reader)
{
    m_pixelClock = usualPixelClock;
    reader.read(m_params[PixelClock], &Int::GetValue, m_pixelClock);
}

void ExposureTime::readLineTime(const FeatureReader &reader)
{
    reader.read(m_params[LineTime], &Int::GetValue, m_lineTime);
}

void ExposureTime::readParts(const FeatureReader &reader)
{
    reader.read(m_params[Lines], &Int::GetValue, m_parts.lines);
    reader.read(m_params[Lines], &Int::GetMax, m_maxParts.lines);
    reader.read(m_params[Clocks], &Int::GetValue, m_parts.clocks);
    reader.read(m_params[Clocks], &Int::GetMax, m_maxParts.clocks);
}

ExposureTime::Parts ExposureTime::split(int time)
{
    const qint64 total = product(time, m_pixelClock);
    if (m_lineTime == 0)
        m_parts.lines = 0;
    else
        m_parts.lines = m_lineTime == -1 ? -total : total / m_lineTime;
    m_parts.clocks = total - m_lineTime * m_parts.lines;
    return m_parts;
}

long ExposureTime::toControl(long lines) const
{
    return quotient(product(lines, m_lineTime), m_pixelClock);
}

long ExposureTime::toDevice(long microseconds) const
{
    return quotient(product(microseconds, m_pixelClock), m_lineTime);
}

qint64 ExposureTime::timeOf(Parts parts) const
{
    if (m_pixelClock == 0)
        return 0;
    const qint64 clocks = product(qMin(parts.lines, largest), qMin(m_lineTime, largest));
    return (clocks + qMin(parts.clocks, largest)) / m_pixelClock;
}

} // namespace OrvGui
