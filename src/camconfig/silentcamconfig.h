// SPDX-License-Identifier: MIT
#pragma once

#include "camconfig/orvcamconfig.h"

namespace OrvGui {

/// The main window for callers that must not block: it does not run the camera picker when the
/// device is null.
class SilentCamConfig : public OrvCamConfig
{
public:
    explicit SilentCamConfig(OrvCam::Device *device, QWidget *parent = nullptr)
        : OrvCamConfig(WithoutPicker(), device, parent, Qt::WindowFlags())
    {
    }
};

} // namespace OrvGui
