// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up the automatic white balance of a camera and its manual coefficients.
///
/// The coefficients that the camera uses at present are shown separately, so that they stay visible
/// while one of them is being edited. See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigColorDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui
