// SPDX-License-Identifier: MIT
#include "camconfig/framenumbers.h"

#include "camconfig/featurereader.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

namespace OrvGui {

FrameNumbers FrameNumbers::read(const FeatureReader &reader, const OrvGenParam::Array &array)
{
    FrameNumbers numbers;
    const auto textOf = [&](const char *feature) {
        return text(reader, array.GetInt(feature), numbers.hasTimedOut);
    };
    numbers.width = textOf("Width");
    numbers.height = textOf("Height");
    numbers.frameTime = textOf("CurrentFrameTime");
    numbers.exposure = textOf("CurrentExposureTime");
    return numbers;
}

QString FrameNumbers::text(const FeatureReader &reader, const OrvGenParam::Int *param,
                           bool &hasTimedOut)
{
    if (!param)
        return QString();
    int32_t error = OrvCam::Success;
    const qint64 value = reader.get([&] { return param->GetValue(&error); });
    hasTimedOut |= error == OrvCam::ErrorTimeout;
    return error == OrvCam::Success ? QString::number(value) : QString();
}

} // namespace OrvGui
