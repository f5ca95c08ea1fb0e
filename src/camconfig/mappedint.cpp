// SPDX-License-Identifier: MIT
#include "camconfig/mappedint.h"

#include "camconfig/featuretooltip.h"
#include "camconfig/iorvcamconfigintconverter.h"
#include "widgets/valuegrid.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

using OrvGenParam::Int;

namespace OrvGui {

MappedInt::MappedInt(const MapperContext::Pointer &context, Int *param, QWidget *widget,
                     IOrvCamConfigIntConverter *converter)
    : MappedControl(context, widget), m_param(param), m_converter(converter)
{
}

qint64 MappedInt::toWidget(qint64 number) const
{
    return m_converter ? m_converter->ToControl(static_cast<long>(number), m_param) : number;
}

qint64 MappedInt::capped(qint64 number) const
{
    return qMin(number, m_context->valueCap);
}

MappedInt::Limits MappedInt::readLimits() const
{
    int32_t minError = OrvCam::Success;
    int32_t maxError = OrvCam::Success;
    int32_t stepError = OrvCam::Success;
    const auto read = [this](int64_t (Int::*get)(int32_t *) const, int32_t &error) {
        return toWidget(m_context->read([&] { return (m_param->*get)(&error); }));
    };
    Limits limits;
    limits.min = ValueGrid::toInt(read(&Int::GetMin, minError));
    limits.max = ValueGrid::toInt(capped(read(&Int::GetMax, maxError)));
    const int step = ValueGrid::toInt(read(&Int::GetInc, stepError));
    limits.step = step ? step : 1;
    limits.isKnown = minError == OrvCam::Success && maxError == OrvCam::Success;
    return limits;
}

MappedInt::Value MappedInt::readValue() const
{
    int32_t error = OrvCam::Success;
    const qint64 held = m_context->read([&] { return m_param->GetValue(&error); });
    if (error == OrvCam::Success)
        m_context->note(m_param, held);
    return {capped(toWidget(held)), error == OrvCam::Success};
}

void MappedInt::explainLimits(const Limits &limits)
{
    const bool isCamerasUnit = !m_converter;
    explain(FeatureToolTip::text(m_param, {limits.min, limits.max, limits.step}, isCamerasUnit));
}

void MappedInt::write(int shown)
{
    const qint64 value = m_converter ? m_converter->ToDevice(shown, m_param) : shown;
    m_context->write(object(), m_param, value,
                     [param = m_param, value] { return param->SetValue(value); });
}

} // namespace OrvGui
