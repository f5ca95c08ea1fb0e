// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Configures the strobe outputs of a camera.
/// See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigStrobeDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigStrobeDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui
