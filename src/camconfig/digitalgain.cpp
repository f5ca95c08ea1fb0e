// SPDX-License-Identifier: MIT
#include "camconfig/digitalgain.h"

#include "camconfig/featurereader.h"
#include "journal/featurejournal.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam/Array.h>

#include <QString>

#include <cmath>
#include <limits>
#include <utility>

using OrvGenParam::Int;
using OrvGenParam::Param;

namespace OrvGui {

namespace {

constexpr double fineSteps = 64.0;

/// Limits the range of the slider, which counts its steps in an int; registers may have a larger
/// one.
const double largestFactor = DigitalGain::step * std::numeric_limits<int>::max();
constexpr qint64 mostDoublings = 27;

/// Limits the number of doublings, so that the powers of two do not overflow.
DigitalGain::Parts read(const FeatureReader &reader, int64_t (Int::*get)(int32_t *) const,
                        const Int *coarse, const Int *fine)
{
    DigitalGain::Parts parts;
    reader.read(coarse, get, parts.coarse);
    reader.read(fine, get, parts.fine);
    parts.coarse = qBound(-mostDoublings, parts.coarse, mostDoublings);
    return parts;
}

void write(const std::shared_ptr<FeatureJournal> &journal, Int *param, qint64 former, qint64 value)
{
    if (!param)
        return;
    FeatureJournal::write(journal, QString::fromUtf8(param->GetName()), former, value,
                          [=] { return param->SetValue(value) == OrvCam::Success; });
}

} // namespace

DigitalGain::Parts DigitalGain::Parts::of(double factor)
{
    Parts parts;
    for (qint64 rest = static_cast<qint64>(factor); rest > 1; rest /= 2)
        ++parts.coarse;
    const double base = std::ldexp(1.0, static_cast<int>(parts.coarse));
    parts.fine = static_cast<qint64>((factor - base) / base * fineSteps);
    return parts;
}

double DigitalGain::Parts::factor() const
{
    return qMin(largestFactor, (1.0 + static_cast<double>(fine) / fineSteps) *
                                   std::ldexp(1.0, static_cast<int>(coarse)));
}

DigitalGain::DigitalGain(OrvGenParam::Array *array)
    : m_coarse(array->GetInt("Frame_DigitalCourseGain"))
    , m_fine(array->GetInt("Frame_DigitalFineGain"))
{
}

bool DigitalGain::isPart(const Param *param) const
{
    return param && (param == m_coarse || param == m_fine);
}

bool DigitalGain::isWritable(const FeatureReader &reader) const
{
    return reader.isWritable(m_coarse) || reader.isWritable(m_fine);
}

void DigitalGain::readValue(const FeatureReader &reader)
{
    m_value = read(reader, &Int::GetValue, m_coarse, m_fine);
}

void DigitalGain::readLimits(const FeatureReader &reader)
{
    m_min = read(reader, &Int::GetMin, m_coarse, m_fine);
    m_max = read(reader, &Int::GetMax, m_coarse, m_fine);
}

DigitalGain::Parts DigitalGain::setValue(Parts value)
{
    return std::exchange(m_value, value);
}

void DigitalGain::writeCoarse(const std::shared_ptr<FeatureJournal> &journal, Parts former) const
{
    write(journal, m_coarse, former.coarse, m_value.coarse);
}

void DigitalGain::writeFine(const std::shared_ptr<FeatureJournal> &journal, Parts former) const
{
    write(journal, m_fine, former.fine, m_value.fine);
}

} // namespace OrvGui
