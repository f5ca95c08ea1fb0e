// SPDX-License-Identifier: MIT
#include "camconfig/otherframe.h"

#include "camconfig/featurereader.h"

#include <OrvCam/Codes.h>
#include <OrvGenParam.h>

namespace OrvGui {

void OtherFrame::read(const OrvGenParam::Array &array)
{
    m_selected.clear();
    FeatureReader reader;
    reader.setArray(&array);
    OrvGenParam::Enum *const selector = array.GetEnum("FrameAB_Selector");
    if (!selector || !reader.looksAhead())
        return;
    const FeatureReader::Params shown = FeatureReader::named(
        array, {"FrameAB_Selector", "Width", "Height", "CurrentFrameTime", "CurrentExposureTime"});
    reader.fetchNow(shown);
    int32_t error = OrvCam::Success;
    const QByteArray selected(selector->GetSymbolicValue(&error));
    if (error != OrvCam::Success || selected.isEmpty())
        return;

    const auto select = [=](const char *frame) {
        return selector->SetSymbolicValue(frame) == OrvCam::Success;
    };
    const bool hasMoved = select(selected == frameA ? frameB : frameA);
    if (hasMoved) {
        reader.fetchNow(shown);
        m_numbers = FrameNumbers::read(reader, array);
    }
    // Repeated, because the camera may have executed a write without an answer.
    const bool isBack = select(selected.constData()) || select(selected.constData());
    if (hasMoved && isBack && !m_numbers.hasTimedOut)
        m_selected = selected;
}

bool OtherFrame::isBeside(const QByteArray &selected) const
{
    return !m_selected.isEmpty() && m_selected == selected;
}

} // namespace OrvGui
