// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up the white balance of a camera: the automatic one, and the coefficients by hand.
///
/// The coefficients that the camera uses at the moment are shown apart, so that they can be
/// followed while one of them is being edited. See `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigColorDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigColorDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui
