// SPDX-License-Identifier: MIT
#pragma once

#include "orvcamconfigdialog.h"

namespace OrvGui {

/// Sets up, starts and stops the pulse generator of a camera, and shows the delay between two
/// pulses and their frequency, computed from width and period.
///
/// Text and lamp of the start button show the user's last action, or the state of the camera when
/// the device was set. A burst that ends by itself only releases the button. See
/// `OrvCamConfigDialog` for the rest.
class ORVCAMERAGUIAPI_EXPORT OrvCamConfigPulseDialog : public OrvCamConfigDialog
{
    Q_OBJECT

public:
    explicit OrvCamConfigPulseDialog(OrvCam::Device *device, QWidget *parent = nullptr);
};

} // namespace OrvGui
