// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Configures the colour processing of a camera.
/// See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigColorDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui
